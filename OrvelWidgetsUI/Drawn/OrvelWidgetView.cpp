#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"

#include "OrvelWidgetsUI/Drawn/LargeWidget.h"
#include "OrvelWidgetsUI/Drawn/MediumWidget.h"
#include "OrvelWidgetsUI/Drawn/SmallWidget.h"
#include "OrvelWidgetsUI/Drawn/WidgetCanvas.h"

namespace orvel {

namespace {

View layout(const OrvelWidgetView& view)
{
    switch (view.size) {
    case WidgetSize::small:
        return SmallWidget { view.content, view.look };
    case WidgetSize::medium:
        return MediumWidget { view.content, view.look, view.breatheButton };
    case WidgetSize::large:
        return LargeWidget { view.content, view.look, view.breatheButton };
    }
    return {};
}

}

View OrvelWidgetView::body(const Environment&) const
{
    return WidgetCanvas { .size = size, .look = look, .content = layout(*this) };
}

}
