#pragma once

#include "OrvelPlatform/Views/Alignment.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A view with another in front of it, which is offered the first one's size and counts for nothing in the layout.
struct Overlay {
    View content;
    View front;
    Alignment alignment = Alignment::center;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// The same with the other one behind.
struct Background {
    View content;
    View back;
    Alignment alignment = Alignment::center;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
