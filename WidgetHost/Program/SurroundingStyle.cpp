#include "WidgetHost/Program/SurroundingStyle.h"

namespace orvel {

StyleSettings styleIn(const Surroundings& around)
{
    const auto& appearance = around.appearance;
    return {
        .colors = { .dark = appearance.colorScheme == DesktopAppearance::ColorScheme::dark,
            .increaseContrast = appearance.increasesContrast,
            .reduceTransparency = around.reducesTransparency },
        .reducesMotion = appearance.reducesMotion,
        .biggerText = BiggerText(around.biggerText),
        .textScale = appearance.textScale,
    };
}

}
