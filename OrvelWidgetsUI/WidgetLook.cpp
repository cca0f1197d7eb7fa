#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

Environment lookEnvironment(WidgetLook look, const Environment& outside)
{
    const auto scheme = colorScheme(look);
    return scheme ? outside.with<ColorSchemeKey>(*scheme) : outside;
}

}
