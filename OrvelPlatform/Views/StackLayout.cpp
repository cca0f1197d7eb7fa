#include "OrvelPlatform/Views/StackLayout.h"

#include <algorithm>
#include <cmath>
#include <map>

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
    struct Range {
        double least;
        double most;
        double flexibility() const { return std::isinf(most) ? most : most - least; }
    };
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
        auto unserved = static_cast<double>(group.size());
        for (const auto i : group) {
            const double offered = remaining(available, reserved) / unserved--;
            children[i].extent = measured(children[i].view, offered, across, environment);
            available = remaining(available, along(children[i].extent.size));
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
