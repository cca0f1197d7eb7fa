#pragma once

#include "OrvelDesign/OrvelBackground.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A full background in a palette colour, with the grain in it wherever that may show. It takes all the room it is
/// offered.
struct OrvelBackground {
    OrvelColor fill;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
