#include "OrvelWidgetsUI/Drawn/WidgetBackground.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/WidgetBackground.h"

namespace orvel {

namespace {

LinearGradient paint(const WidgetGradient& gradient)
{
    LinearGradient paint {
        .start = { gradient.start.x, gradient.start.y }, .end = { gradient.end.x, gradient.end.y }, .stops = {}
    };
    for (const auto& stop : gradient.stops)
        paint.stops.push_back({ stop.location, stop.color });
    return paint;
}

}

View WidgetBackground::body(const Environment& environment) const
{
    const auto gradient = widgetBackground(look, environment);
    return gradient ? View(Shape { Rectangle {}, paint(*gradient) }) : View(Spacer {});
}

}
