#include "OrvelWidgetsUI/Drawn/WidgetSymbol.h"

#include <utility>

#include "OrvelPlatform/Views/Frame.h"

namespace orvel {

View symbol(std::string name, std::string fallback, double size, int weight, Paint paint)
{
    constexpr double squarePerDrawing = 24.0 / 20; // symbols are drawn on 24 units with a margin of 2
    return Frame {
        .width = FrameLength::exactly(size),
        .height = FrameLength::exactly(size),
        .content =
            Icon {
                .name = std::move(name),
                .fallback = std::move(fallback),
                .size = size * squarePerDrawing,
                .weight = weight,
                .paint = std::move(paint),
            },
    };
}

}
