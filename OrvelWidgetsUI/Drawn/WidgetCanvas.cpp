#include "OrvelWidgetsUI/Drawn/WidgetCanvas.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"

namespace orvel {

View WidgetCanvas::body(const Environment& environment) const
{
    const auto canvas = points(size);
    return With {
        .changes = withTextLanguage(lookEnvironment(look, {}), environment),
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
