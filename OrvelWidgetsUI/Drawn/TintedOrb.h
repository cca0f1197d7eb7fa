#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The orb where the desktop gives the one colour: its shades are the colour's coverage. The pool keeps near the orb,
/// so that it never lies under words, which are tinted apart from it; it is left out where transparency is reduced.
struct TintedOrb {
    double size; // side in points
    WidgetLook look;
    bool showsPool;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
