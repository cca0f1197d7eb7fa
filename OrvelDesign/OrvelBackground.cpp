#include "OrvelDesign/OrvelBackground.h"

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/TokensShadow.h"

namespace orvel {

namespace Grain {

std::optional<double> opacity(const Environment& environment)
{
    if (!effectiveAccessibility(environment).showsTexture())
        return std::nullopt;
    return environment.get<ColorSchemeKey>() == ColorScheme::dark ? Tokens::Opacity::grainDusk
                                                                  : Tokens::Opacity::grainDawn;
}

}

BackgroundPaint backgroundPaint(const OrvelColor& fill, const Environment& environment)
{
    return { fill.resolve(environment), Grain::opacity(environment) };
}

}
