#pragma once

#include <expected>

#include "OrvelPlatform/Drawing/Renderer.h"
#include "OrvelWidgetsUI/WidgetDrawing.h"

namespace orvel {

/// Draws a widget. Bigger text enlarges the whole picture, frames included.
std::expected<DrawnWidget, Fault> drawnWidget(Renderer& renderer, const WidgetDrawing& drawing);

}
