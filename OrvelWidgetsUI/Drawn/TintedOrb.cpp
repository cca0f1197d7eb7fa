#include "OrvelWidgetsUI/Drawn/TintedOrb.h"

#include "OrvelDesign/Drawn/OrbDisc.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

namespace {

// How far the pool is seen beyond the orb's square, in points.
constexpr double poolReach = 10;

Color color(const WidgetInk& ink, WidgetLook look, const Environment& environment)
{
    return std::get<Color>(paint(ink, look, environment));
}

/// The orb's shades from its middle outward, as coverage.
OrbColors shades(const Color& color)
{
    return { .core = color, .body = color.faded(0.9), .glow = color.faded(0.74), .rim = color.faded(0.65) };
}

}

Extent TintedOrb::measure(const Proposal&, const Environment&) const
{
    return Size { size, size };
}

void TintedOrb::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto accented = canvas.accented();
    const WidgetColors colors { look };
    if (showsPool && !effectiveAccessibility(environment).reduceTransparency) {
        constexpr double seenShare = 0.62 * 1.41421; // of a pool's square
        const double side = (size + 2 * poolReach) / seenShare;
        drawOrbPool(canvas, in.center(), side, color(colors.orbPool(), look, environment));
    }
    drawOrbDisc(canvas, in.center(), size, shades(color(colors.title(), look, environment)));
}

}
