#include "OrvelWidgetsUI/Drawn/OrvelBreatheWidgetView.h"

#include "OrvelWidgetsUI/Drawn/SmallWidget.h"
#include "OrvelWidgetsUI/Drawn/WidgetCanvas.h"

namespace orvel {

View OrvelBreatheWidgetView::body(const Environment&) const
{
    return WidgetCanvas { .size = WidgetSize::small, .look = look, .content = SmallWidget { content, look } };
}

}
