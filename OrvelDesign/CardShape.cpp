#include "OrvelDesign/CardShape.h"

#include <algorithm>

namespace orvel {

CardShape::Outline CardShape::path(const Outline& rectangle) const
{
    // More inset than there is room leaves an outline without area at the middle.
    const double insetX = std::min(inset, rectangle.width / 2);
    const double insetY = std::min(inset, rectangle.height / 2);
    const double width = rectangle.width - 2 * insetX;
    const double height = rectangle.height - 2 * insetY;
    return {
        .x = rectangle.x + insetX,
        .y = rectangle.y + insetY,
        .width = width,
        .height = height,
        .radius = std::clamp(radius - inset, 0.0, std::max(std::min(width, height) / 2, 0.0)),
    };
}

}
