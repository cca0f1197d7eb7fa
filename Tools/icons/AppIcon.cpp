#include "Tools/icons/AppIcon.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/Drawn/OrbDisc.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"

namespace orvel {

namespace {

Rect inset(const Rect& rect, double by)
{
    return { rect.x + by, rect.y + by, rect.width - 2 * by, rect.height - 2 * by };
}

/// Of the tile's side.
double orbShare(double side)
{
    if (side < 32)
        return 0.86;
    return side < 128 ? 0.75 : 0.66;
}

}

Extent AppIcon::measure(const Proposal&, const Environment&) const
{
    return Size { side, side };
}

void AppIcon::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto color = [&](const OrvelColor& named) { return Color(named.resolve(environment)); };
    const auto tile = inset(in, std::floor((side - 1) / 16));
    const RoundedRectangle outline { tile.width * 0.225 };
    const std::vector<GradientStop> sky { { 0, color(Palette::surfacePlum) }, { 1, color(Palette::bg) } };
    canvas.fill(outline, tile, LinearGradient { { 0.5, 0 }, { 0.5, 1 }, sky });

    const auto clip = canvas.clipped(outline, tile);
    // Brighter than round an orb in a window, where the light has more room.
    constexpr double brighter = 1.8;
    drawOrbPool(canvas, tile.center(), tile.width * 1.5, color(Palette::orbPool).faded(brighter));
    drawOrbDisc(canvas, tile.center(), tile.width * orbShare(side),
        OrbColors::palette(environment.get<ColorSchemeKey>() == ColorScheme::dark, 1));

    // A line as of light keeps the tile apart from a dark ground.
    const double line = std::max(1.0, std::round(side / 128));
    canvas.stroke(RoundedRectangle { outline.radius - line / 2 }, inset(tile, line / 2), Stroke { line },
        color(Palette::textPrimary).faded(0.16));
}

}
