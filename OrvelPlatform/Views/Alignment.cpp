#include "OrvelPlatform/Views/Alignment.h"

namespace orvel {

namespace {

double placedY(const Extent& child, const Rect& place, VerticalAlignment alignment, const Extent& baselines)
{
    switch (alignment) {
    case VerticalAlignment::top:
        return place.y;
    case VerticalAlignment::center:
        return place.y + (place.height - child.size.height) / 2;
    case VerticalAlignment::bottom:
        return place.bottom() - child.size.height;
    case VerticalAlignment::firstBaseline:
        return place.y + baselines.firstBaseline - child.firstBaseline;
    case VerticalAlignment::lastBaseline:
        return place.y + baselines.lastBaseline - child.lastBaseline;
    }
    return place.y;
}

}

double placedX(double width, double left, double placeWidth, HorizontalAlignment alignment, LayoutDirection direction)
{
    const double spare = placeWidth - width;
    if (alignment == HorizontalAlignment::center)
        return left + spare / 2;
    const bool atLeft = (alignment == HorizontalAlignment::leading) == (direction == LayoutDirection::leftToRight);
    return atLeft ? left : left + spare;
}

Rect placed(
    const Extent& child, const Rect& place, Alignment alignment, LayoutDirection direction, const Extent& baselines)
{
    return { { placedX(child.size.width, place.x, place.width, alignment.horizontal, direction),
                 placedY(child, place, alignment.vertical, baselines) },
        child.size };
}

Rect placed(const Extent& child, const Rect& place, Alignment alignment, LayoutDirection direction)
{
    const Extent atEdges { place.size(), child.firstBaseline, place.height - child.size.height + child.lastBaseline };
    return placed(child, place, alignment, direction, atEdges);
}

}
