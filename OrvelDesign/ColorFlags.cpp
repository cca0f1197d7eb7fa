#include "OrvelDesign/ColorFlags.h"

#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

ColorFlags ColorFlags::in(const Environment& environment)
{
    const auto options = effectiveAccessibility(environment);
    return {
        .dark = environment.get<ColorSchemeKey>() == ColorScheme::dark,
        .increaseContrast = options.increaseContrast,
        .reduceTransparency = options.reduceTransparency,
    };
}

}
