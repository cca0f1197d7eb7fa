#include "OrvelDesign/Drawn/OrbPool.h"

#include <algorithm>
#include <numbers>

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/Progress.h"

namespace orvel {

void drawOrbPool(Canvas& canvas, Point center, double side, const Color& color)
{
    const double reach = side * 0.5 * std::numbers::sqrt2; // half of the square's diagonal
    constexpr double end = 0.62; // nothing is left of the light from here on
    const double seen = end * reach;
    canvas.fill(Ellipse {}, { center.x - seen, center.y - seen, 2 * seen, 2 * seen },
        RadialGradient {
            .center = { 0.5, 0.5 },
            .radius = reach,
            .stops = { { 0, color }, { 0.34, color.faded(0.4) }, { end, color.faded(0) } },
        });
}

Extent OrbPool::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void OrbPool::draw(Canvas& canvas, const Rect& in, const Environment&) const
{
    const Color color = Palette::orbPool.rgba({ .dark = dark });
    drawOrbPool(canvas, in.center(), std::min(in.width, in.height), color.faded(clampedProgress(opacity)));
}

}
