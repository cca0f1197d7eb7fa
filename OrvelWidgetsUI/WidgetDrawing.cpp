#include "OrvelWidgetsUI/WidgetDrawing.h"

#include "OrvelPlatform/Base/Bundle.h"
#include "OrvelPlatform/Base/LoadedLibrary.h"

namespace orvel {

namespace {

/// Lies in this module: the library that draws is installed beside it.
constexpr char marker = 0;

std::expected<WidgetDoor, Fault> door()
{
    static WidgetDoor found = nullptr;
    if (!found) {
        // A library that is not there yet may be a moment later, while a package is being installed.
        const auto symbol = loadedSymbol(Bundle::holding(&marker).path() / "liborvel-drawn.so", widgetDoorName);
        if (!symbol)
            return std::unexpected(symbol.error());
        found = reinterpret_cast<WidgetDoor>(*symbol);
    }
    return found;
}

}

std::expected<DrawnWidget, Fault> drawWidget(const WidgetDrawing& drawing)
{
    const auto draw = door();
    return draw ? (*draw)(drawing) : std::unexpected(draw.error());
}

std::expected<void, Fault> prepareDrawing()
{
    if (const auto loaded = door(); !loaded)
        return std::unexpected(loaded.error());
    return {};
}

}
