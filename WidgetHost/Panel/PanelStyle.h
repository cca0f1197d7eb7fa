#pragma once

#include <string>

#include "WidgetHost/Style/StyleSheet.h"

namespace orvel {

/// The sizes of a control's tile, in points: a round symbol, and beside it the title above the value.
namespace TileMetrics {
inline constexpr double width = 168, height = 76; // at least
inline constexpr double inset = 12; // at all sides
inline constexpr double corner = 22;
inline constexpr double circle = 40;
inline constexpr double symbol = 20; // its box, which its lines do not fill
inline constexpr double symbolGap = 10; // between circle and text
inline constexpr double textGap = 1; // between title and value
}

/// The panel's style; `window` is its window's name. The class "opaque" on the window says that nothing shines through
/// it, and that its corners have to be square.
std::string panelStyleSheet(const std::string& window, const StyleSettings& settings);

}
