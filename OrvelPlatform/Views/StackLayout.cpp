#include "OrvelPlatform/Views/StackLayout.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace orvel {

namespace {

struct Range {
    double least;
    double most;
    double flexibility() const { return std::isinf(most) ? most : most - least; }
    double within(double length) const { return std::clamp(length, least, std::max(least, most)); }
};

double lengthAt(double level, std::span<const Range> ranges)
{
    double length = 0;
    for (const auto& range : ranges)
        length += range.within(level);
    return length;
}

/// The length that everybody is given, within their own limits, when together they fill what is available. Between two
/// limits the sum grows in proportion to the number of those who take part.
double equalShare(double available, std::span<const Range> ranges)
{
    if (ranges.size() == 1)
        return ranges.front().within(available);
    std::vector<double> limits { 0 };
    limits.reserve(2 * ranges.size() + 1);
    for (const auto& range : ranges) {
        limits.push_back(range.least);
        limits.push_back(range.most);
    }
    std::ranges::sort(limits);
    const auto above = std::ranges::find_if(limits, [&](double limit) { return lengthAt(limit, ranges) > available; });
    if (above == limits.begin())
        return 0;
    if (above == limits.end())
        return limits.back();
    const double below = *std::prev(above);
    const auto sharing =
        std::ranges::count_if(ranges, [&](const Range& r) { return r.least <= below && r.most > below; });
    return below + (available - lengthAt(below, ranges)) / static_cast<double>(sharing);
}

/// What is left of a length; of an infinite one everything.
double remaining(double available, double taken)
{
    return std::isinf(available) ? available : std::max(available - taken, 0.0);
}

}

StackLayout::StackLayout(Axis axis, double spacing, const std::vector<View>& children)
    : m_axis(axis), m_spacing(spacing)
{
    m_children.reserve(children.size());
    std::ranges::copy_if(
        children, std::back_inserter(m_children), [](const View& child) { return !child.isNothing(); });
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
    struct Waiting {
        Child* child;
        double priority;
        Range range;
    };
    std::vector<Waiting> waiting;
    waiting.reserve(children.size());
    double reserved = 0; // for the priorities that are still to come
    for (auto& child : children) {
        const Range range { lengthOf(child.view, 0, across, environment),
            lengthOf(child.view, infiniteLength, across, environment) };
        waiting.push_back({ &child, child.view.stackTraits().priority, range });
        reserved += range.least;
    }
    std::ranges::stable_sort(waiting, [](const Waiting& a, const Waiting& b) {
        return a.priority > b.priority || (a.priority == b.priority && a.range.flexibility() < b.range.flexibility());
    });
    std::vector<Range> ranges;
    ranges.reserve(waiting.size());
    for (const auto& each : waiting)
        ranges.push_back(each.range);

    for (std::size_t first = 0; first < waiting.size();) {
        std::size_t end = first;
        for (; end < waiting.size() && waiting[end].priority == waiting[first].priority; ++end)
            reserved -= ranges[end].least;
        for (; first < end; ++first) {
            const auto rest = std::span(ranges).subspan(first, end - first);
            const double offered = rest.front().within(equalShare(remaining(available, reserved), rest));
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
    for (const auto& view : m_children)
        children.push_back({ view, {}, 0 });
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
