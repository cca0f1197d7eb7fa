#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

OrvelAccessibility effectiveAccessibility(const Environment& environment)
{
    auto options = environment.get<OrvelAccessibilityKey>();
    options.reduceMotion |= environment.get<ReduceMotionKey>();
    options.reduceTransparency |= environment.get<ReduceTransparencyKey>();
    options.increaseContrast |= environment.get<ColorSchemeContrastKey>() == ColorSchemeContrast::increased;
    return options;
}

}
