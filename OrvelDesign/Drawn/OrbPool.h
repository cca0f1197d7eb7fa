#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The side of the pool's square, as a multiple of the orb's.
inline constexpr double orbPoolFactor = 2.33;

/// Fills a pool of light whose square has `side`. The colour's alpha is that of its middle.
void drawOrbPool(Canvas& canvas, Point center, double side, const Color& color);

/// The light round the orb, in the largest square in its place.
struct OrbPool {
    bool dark;
    double opacity = 1;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
