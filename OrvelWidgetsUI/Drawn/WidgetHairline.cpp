#include "OrvelWidgetsUI/Drawn/WidgetHairline.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

View WidgetHairline::body(const Environment& environment) const
{
    const auto thin = FrameLength::exactly(1);
    return Hidden { Frame {
        .width = axis == Axis::vertical ? thin : FrameLength::filling(),
        .height = axis == Axis::horizontal ? thin : FrameLength::filling(),
        .content = Shape { Rectangle {}, paint(WidgetColors { look }.line(), look, environment) },
    } };
}

}
