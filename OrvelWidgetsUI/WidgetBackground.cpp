#include "OrvelWidgetsUI/WidgetBackground.h"

#include "OrvelDesign/Palette.h"

namespace orvel {

std::optional<WidgetGradient> widgetBackground(WidgetLook look, const Environment& outside)
{
    if (isSystemTinted(look))
        return std::nullopt;
    const auto inside = lookEnvironment(look, outside);
    const double middle = look == WidgetLook::dusk ? 0.55 : 0.6;
    return WidgetGradient {
        .start = { 0.37, 0.02 },
        .end = { 0.63, 0.98 },
        .stops = { {
            { 0, Palette::surface2.resolve(inside) },
            { middle, Palette::surface1.resolve(inside) },
            { 1, Palette::bg.resolve(inside) },
        } },
    };
}

}
