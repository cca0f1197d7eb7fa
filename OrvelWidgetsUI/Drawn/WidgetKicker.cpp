#include "OrvelWidgetsUI/Drawn/WidgetKicker.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"

namespace orvel {

View WidgetKicker::body(const Environment& environment) const
{
    const auto ink = paint(WidgetColors { look }.kicker(), look, environment);
    auto capitals = environment.get<WordsLocaleKey>().uppercased(words);
    auto style = textStyle(WidgetType::kicker);
    if (capitals == words)
        style.tracking = 0; // only capitals need the air; letters that join would be torn apart
    return Element {
        .role = ElementRole::text,
        .label = words,
        .content = Accentable { lineOfText(std::move(capitals), style, ink) },
    };
}

}
