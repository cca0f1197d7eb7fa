#include <type_traits>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelWidgetsUI/Door/WidgetPicture.h"

namespace orvel {

namespace {

/// Lies in this module.
constexpr char marker = 0;

/// In a program of our own the few typefaces may be the process's; an application keeps its own.
FontScope fontScope()
{
    return Bundle::main().path() == Bundle::holding(&marker).path() ? FontScope::ownProcess : FontScope::guest;
}

}

/// All that liborvel-drawn shows. What it keeps from picture to picture lives as long as the process.
extern "C" std::expected<DrawnWidget, Fault> orvelDrawWidget(const WidgetDrawing& drawing)
{
    static Renderer renderer(designBundle(), fontScope());
    return drawnWidget(renderer, drawing);
}

static_assert(std::is_same_v<decltype(&orvelDrawWidget), WidgetDoor>);

}
