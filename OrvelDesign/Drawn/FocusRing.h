#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A control with a ring round it while it has the keyboard. The ring takes no room in the layout. It shows on every
/// control below a preview that forces the focused state.
struct FocusRing {
    static constexpr double width = 3; // of the line, in points
    static constexpr double outset = 2; // the gap between the control's outline and the line, in points

    bool isFocused;
    Outline outline; // of the control
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
