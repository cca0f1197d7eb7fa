#include "OrvelPlatform/Views/Stacks.h"

#include <algorithm>

#include "OrvelPlatform/Views/StackLayout.h"

namespace orvel {

namespace {

using Children = std::vector<StackLayout::Child>;

/// How far a row reaches above and below the line that its children are aligned on.
struct Reach {
    double above = 0;
    double below = 0;
};

double lineOf(const Extent& extent, VerticalAlignment alignment)
{
    switch (alignment) {
    case VerticalAlignment::top:
        return 0;
    case VerticalAlignment::center:
        return extent.size.height / 2;
    case VerticalAlignment::bottom:
        return extent.size.height;
    case VerticalAlignment::firstBaseline:
        return extent.firstBaseline;
    case VerticalAlignment::lastBaseline:
        return extent.lastBaseline;
    }
    return 0;
}

Reach reach(const Children& children, VerticalAlignment alignment)
{
    Reach reach;
    for (const auto& child : children) {
        if (child.view.stackTraits().isSpacer)
            continue;
        const double line = lineOf(child.extent, alignment);
        reach.above = std::max(reach.above, line);
        reach.below = std::max(reach.below, child.extent.size.height - line);
    }
    return reach;
}

double lengthAlong(const Children& children, const StackLayout& layout)
{
    return children.empty() ? 0 : children.back().offset + layout.along(children.back().extent.size);
}

}

Extent HStack::measure(const Proposal& proposed, const Environment& environment) const
{
    const StackLayout layout(Axis::horizontal, spacing, children);
    const auto served = layout.served(proposed, environment);
    const auto [above, below] = reach(served, alignment);
    Extent whole { Size { lengthAlong(served, layout), above + below } };
    bool isFirst = true;
    for (const auto& child : served) {
        if (child.view.stackTraits().isSpacer)
            continue;
        const double top = above - lineOf(child.extent, alignment);
        const double first = top + child.extent.firstBaseline;
        const double last = top + child.extent.lastBaseline;
        whole.firstBaseline = isFirst ? first : std::min(whole.firstBaseline, first);
        whole.lastBaseline = isFirst ? last : std::max(whole.lastBaseline, last);
        isFirst = false;
    }
    return whole;
}

void HStack::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const StackLayout layout(Axis::horizontal, spacing, children);
    const auto served = layout.served(Proposal::of(in.size()), environment);
    const auto [above, below] = reach(served, alignment);
    const bool fromLeft = environment.get<LayoutDirectionKey>() == LayoutDirection::leftToRight;
    const double top = in.y + (in.height - above - below) / 2; // spare or missing height is shared
    for (const auto& child : served) {
        const double width = child.extent.size.width;
        const double x = fromLeft ? in.x + child.offset : in.right() - child.offset - width;
        const double y = top + above - lineOf(child.extent, alignment);
        child.view.draw(canvas, { { x, y }, child.extent.size }, environment);
    }
}

Extent VStack::measure(const Proposal& proposed, const Environment& environment) const
{
    const StackLayout layout(Axis::vertical, spacing, children);
    const auto served = layout.served(proposed, environment);
    double width = 0;
    for (const auto& child : served)
        width = std::max(width, child.extent.size.width);
    if (served.empty())
        return {};
    return { { width, lengthAlong(served, layout) }, served.front().extent.firstBaseline,
        served.back().offset + served.back().extent.lastBaseline };
}

void VStack::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const StackLayout layout(Axis::vertical, spacing, children);
    const auto direction = environment.get<LayoutDirectionKey>();
    for (const auto& child : layout.served(Proposal::of(in.size()), environment)) {
        const double x = placedX(child.extent.size.width, in.x, in.width, alignment, direction);
        child.view.draw(canvas, { { x, in.y + child.offset }, child.extent.size }, environment);
    }
}

Extent Spacer::measure(const Proposal& proposed, const Environment&) const
{
    return Size { std::max(proposed.width.value_or(least), least), std::max(proposed.height.value_or(least), least) };
}

void Priority::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    content.draw(canvas, in, environment);
}

StackTraits Priority::stackTraits() const
{
    auto traits = content.stackTraits();
    traits.priority = priority;
    return traits;
}

}
