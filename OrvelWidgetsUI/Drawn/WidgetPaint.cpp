#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

Paint paint(const WidgetInk& ink, WidgetLook look, const Environment& outside)
{
    if (const auto color = resolve(ink, look, outside))
        return Color { *color };
    return Erase {};
}

}
