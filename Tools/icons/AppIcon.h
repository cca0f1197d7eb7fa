#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The application's icon in a square of `side` points, each a pixel of the picture: the orb at night, on a tile that
/// keeps it in sight on any ground. Small ones have a larger orb, and every tile ends on whole pixels.
struct AppIcon {
    double side;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
