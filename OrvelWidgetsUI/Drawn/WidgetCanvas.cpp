#include "OrvelWidgetsUI/Drawn/WidgetCanvas.h"

#include "OrvelPlatform/Views/Primitives.h"

namespace orvel {

View WidgetCanvas::body(const Environment&) const
{
    const auto canvas = points(size);
    return With {
        .changes = lookEnvironment(look, {}),
        .content = Clipped { Rectangle {},
            Frame {
                .width = FrameLength::exactly(canvas.width),
                .height = FrameLength::exactly(canvas.height),
                .alignment = Alignment::topLeading,
                .content = content,
            } },
    };
}

}
