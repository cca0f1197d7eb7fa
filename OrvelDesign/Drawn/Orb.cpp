#include "OrvelDesign/Drawn/Orb.h"

#include "OrvelDesign/Drawn/OrbDisc.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

namespace {

Rect square(Point center, double side)
{
    return { center.x - side / 2, center.y - side / 2, side, side };
}

}

Extent Orb::measure(const Proposal&, const Environment&) const
{
    return Size { size, size };
}

void Orb::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto options = effectiveAccessibility(environment);
    const bool dark = environment.get<ColorSchemeKey>() == ColorScheme::dark;
    const double poolScale = options.reduceMotion ? 1 : pose.poolScale;
    const double scale = options.reduceMotion ? 1 : pose.scale;
    if (showsPool && !options.reduceTransparency)
        OrbPool { dark, pose.poolOpacity }.draw(
            canvas, square(in.center(), size * orbPoolFactor * poolScale), environment);
    OrbDisc { dark, pose.brightness }.draw(canvas, square(in.center(), size * scale), environment);
}

}
