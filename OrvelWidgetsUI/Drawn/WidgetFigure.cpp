#include "OrvelWidgetsUI/Drawn/WidgetFigure.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"

namespace orvel {

namespace {

/// A dash for nothing is seen and not heard.
std::string spoken(const WidgetContent::Number& number)
{
    return (number.value == "—" ? "0" : number.value) + " " + number.label;
}

}

View WidgetFigure::body(const Environment& environment) const
{
    const WidgetColors colors { look };
    const auto value = textStyle(large ? WidgetType::numberLarge : WidgetType::numberMedium);
    return Element {
        .role = ElementRole::text,
        .label = spoken(number),
        .content = VStack {
            .alignment = HorizontalAlignment::leading,
            .children = {
                lineOfText(number.value, value, paint(colors.title(), look, environment)),
                lineOfText(number.label, textStyle(WidgetType::label), paint(colors.detail(), look, environment)),
            },
        },
    };
}

}
