#include "OrvelDesign/Drawn/OrbDisc.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/Palette.h"

namespace orvel {

namespace {

/// Where the light comes from, in units of the square, and how far its gradient reaches: to the farthest corner.
constexpr double lightX = 0.5;
constexpr double lightY = 0.48;
const double reach = std::hypot(0.5, 0.52);

/// Nothing is left of the rim from here on.
constexpr double rimEnd = 0.72;

std::vector<GradientStop> stops(const OrbColors& colors)
{
    return {
        { 0, colors.core },
        { 0.26, colors.body },
        { 0.47, colors.glow },
        { 0.6, colors.rim.faded(0.62) },
        { 0.67, colors.rim.faded(0.18) },
        { rimEnd, colors.rim.faded(0) },
    };
}

}

OrbColors OrbColors::palette(bool dark, double brightness)
{
    const double factor = std::max(brightness, 0.0);
    const auto lit = [&](const OrvelColor& color) {
        const auto plain = color.rgba({ .dark = dark });
        return Color { std::min(plain.red * factor, 1.0), std::min(plain.green * factor, 1.0),
            std::min(plain.blue * factor, 1.0), plain.alpha };
    };
    return { lit(Palette::orbCore), lit(Palette::orbBody), lit(Palette::orbGlow), lit(Palette::orbRim) };
}

void drawOrbDisc(Canvas& canvas, Point center, double side, const OrbColors& colors)
{
    const Point light { center.x + (lightX - 0.5) * side, center.y + (lightY - 0.5) * side };
    const double seen = rimEnd * reach * side;
    canvas.fill(Ellipse {}, { light.x - seen, light.y - seen, 2 * seen, 2 * seen },
        RadialGradient { .center = { 0.5, 0.5 }, .radius = reach * side, .stops = stops(colors) });
}

Extent OrbDisc::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void OrbDisc::draw(Canvas& canvas, const Rect& in, const Environment&) const
{
    drawOrbDisc(canvas, in.center(), std::min(in.width, in.height), OrbColors::palette(dark, brightness));
}

}
