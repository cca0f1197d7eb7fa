#pragma once

namespace orvel {

/// The ring around the control that has the keyboard, in points. Its colour is `Palette::focusRing`.
namespace FocusRing {
inline constexpr double width = 3;
inline constexpr double outset = 2; // how far it stands outside the control's shape
}

}
