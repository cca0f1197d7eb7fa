#include "OrvelPlatform/Views/StackLayout.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <tuple>

namespace orvel {

namespace {

struct Range {
    double least;
    double most;
    double flexibility() const { return std::isinf(most) ? most : most - least; }
    double within(double length) const { return std::clamp(length, least, std::max(least, most)); }
};

/// A child that is still to be served.
struct Waiting {
    Range range;
    double priority;
    StackLayout::Child* child;
};

double lengthAt(double level, std::span<const Waiting> waiting)
{
    double length = 0;
    for (const auto& each : waiting)
        length += each.range.within(level);
    return length;
}

/// The length that everybody is given, within their own limits, when together they fill what is available. Between two
/// limits the sum grows in proportion to the number of those who take part.
double equalShare(double available, std::span<const Waiting> waiting)
{
    if (waiting.size() == 1)
        return waiting.front().range.within(available);
    std::vector<double> limits { 0 };
    limits.reserve(2 * waiting.size() + 1);
    for (const auto& [range, priority, child] : waiting) {
        limits.push_back(range.least);
        limits.push_back(range.most);
    }
    std::ranges::sort(limits);
    const auto above = std::ranges::find_if(limits, [&](double limit) { return lengthAt(limit, waiting) > available; });
    if (above == limits.begin())
        return 0;
    if (above == limits.end())
        return limits.back();
    const double below = *std::prev(above);
    const auto sharing = std::ranges::count_if(
        waiting, [&](const Waiting& each) { return each.range.least <= below && each.range.most > below; });
    return below + (available - lengthAt(below, waiting)) / static_cast<double>(sharing);
}

/// What is left of a length; of an infinite one everything.
double remaining(double available, double taken)
{
    return std::isinf(available) ? available : std::max(available - taken, 0.0);
}

}

StackLayout::StackLayout(Axis axis, double spacing, const std::vector<View>& children)
    : m_axis(axis), m_spacing(spacing), m_children(children)
{
}

Extent StackLayout::measured(
    const View& view, ProposedLength along, ProposedLength across, const Environment& environment) const
{
    const bool horizontal = m_axis == Axis::horizontal;
    auto extent = view.measure(horizontal ? Proposal { along, across } : Proposal { across, along }, environment);
    if (view.stackTraits().isSpacer)
        (horizontal ? extent.size.height : extent.size.width) = 0;
    return extent;
}

double StackLayout::lengthOf(
    const View& view, ProposedLength along, ProposedLength across, const Environment& environment) const
{
    return this->along(measured(view, along, across, environment).size);
}

void StackLayout::share(
    std::vector<Child>& children, double available, ProposedLength across, const Environment& environment) const
{
    std::vector<Waiting> waiting;
    waiting.reserve(children.size());
    double reserved = 0; // for the priorities that are still to come
    for (auto& child : children) {
        const Range range { lengthOf(child.view, 0, across, environment),
            lengthOf(child.view, infiniteLength, across, environment) };
        waiting.push_back({ range, child.view.stackTraits().priority, &child });
        reserved += range.least;
    }
    std::ranges::sort(waiting, [](const Waiting& a, const Waiting& b) {
        return std::tuple(-a.priority, a.range.flexibility(), a.child)
            < std::tuple(-b.priority, b.range.flexibility(), b.child);
    });
    for (std::size_t first = 0; first < waiting.size();) {
        std::size_t end = first;
        for (; end < waiting.size() && waiting[end].priority == waiting[first].priority; ++end)
            reserved -= waiting[end].range.least;
        for (; first < end; ++first) {
            const auto rest = std::span(waiting).subspan(first, end - first);
            const double offered = rest.front().range.within(equalShare(remaining(available, reserved), rest));
            auto& child = *waiting[first].child;
            child.extent = measured(child.view, offered, across, environment);
            available = remaining(available, along(child.extent.size));
        }
    }
}

std::vector<StackLayout::Child> StackLayout::served(const Proposal& proposed, const Environment& environment) const
{
    std::vector<Child> children;
    children.reserve(m_children.size());
    for (const auto& view : m_children) {
        if (!view.isNothing())
            children.push_back({ view, {}, 0 });
    }
    if (children.empty())
        return children;

    const bool horizontal = m_axis == Axis::horizontal;
    const auto available = horizontal ? proposed.width : proposed.height;
    const auto across = horizontal ? proposed.height : proposed.width;
    if (available) {
        const double gaps = m_spacing * static_cast<double>(children.size() - 1);
        share(children, remaining(*available, gaps), across, environment);
    } else {
        for (auto& child : children)
            child.extent = measured(child.view, {}, across, environment);
    }

    double offset = 0;
    for (auto& child : children) {
        child.offset = offset;
        offset += along(child.extent.size) + m_spacing;
    }
    return children;
}

}
