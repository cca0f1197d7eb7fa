#include "OrvelPlatform/Views/StackLayout.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>

namespace orvel {

namespace {

/// Those of one priority, by index.
using Group = std::vector<std::size_t>;

std::map<double, Group, std::greater<>> groups(const std::vector<StackLayout::Child>& children)
{
    std::map<double, Group, std::greater<>> byPriority;
    for (std::size_t i = 0; i < children.size(); ++i)
        byPriority[children[i].view.stackTraits().priority].push_back(i);
    return byPriority;
}

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
    std::vector<double> limits { 0 };
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
    std::vector<Range> ranges;
    for (const auto& child : children)
        ranges.push_back({ lengthOf(child.view, 0, across, environment),
            lengthOf(child.view, infiniteLength, across, environment) });

    double reserved = 0; // for the priorities that are still to come
    for (const auto& range : ranges)
        reserved += range.least;
    for (auto& [priority, group] : groups(children)) {
        for (const auto i : group)
            reserved -= ranges[i].least;
        std::ranges::stable_sort(group, {}, [&](std::size_t i) { return ranges[i].flexibility(); });
        std::vector<Range> unserved;
        for (const auto i : group)
            unserved.push_back(ranges[i]);
        for (std::size_t served = 0; served < group.size(); ++served) {
            const std::span rest(unserved.begin() + static_cast<std::ptrdiff_t>(served), unserved.end());
            const double offered = rest.front().within(equalShare(remaining(available, reserved), rest));
            auto& child = children[group[served]];
            child.extent = measured(child.view, offered, across, environment);
            available = remaining(available, along(child.extent.size));
        }
    }
}

std::vector<StackLayout::Child> StackLayout::served(const Proposal& proposed, const Environment& environment) const
{
    std::vector<Child> children;
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
