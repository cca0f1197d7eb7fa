#include "OrvelWidgetsUI/Drawn/WidgetText.h"

#include <utility>

#include "OrvelDesign/Drawn/OrvelFont.h"

namespace orvel {

TextStyle textStyle(WidgetType type)
{
    auto style = font(spec(type));
    style.tabularDigits = type == WidgetType::numberMedium || type == WidgetType::numberLarge;
    return style;
}

Text lineOfText(std::string words, const TextStyle& style, Paint paint)
{
    return { .runs = { { std::move(words), style } }, .paint = std::move(paint), .lineLimit = 1 };
}

}
