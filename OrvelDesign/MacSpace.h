#pragma once

namespace orvel {

/// Distances of the desktop's surfaces, in points. They and `MacRadius` have values in common and nothing else.
namespace MacSpace {
inline constexpr double close = 6;
inline constexpr double snug = 10;
inline constexpr double inset = 14;
inline constexpr double wideInset = 18;
}

/// Corner radii of the desktop's surfaces, in points.
namespace MacRadius {
inline constexpr double keycap = 4;
inline constexpr double popoverRow = 6;
inline constexpr double row = 10;
inline constexpr double settingsGroup = 14;
inline constexpr double tile = 16;
}

}
