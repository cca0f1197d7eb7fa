#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The colours of the orb from its middle outward.
struct OrbColors {
    Color core;
    Color body;
    Color glow;
    Color rim;

    /// The palette's, warm in both appearances. Each channel is multiplied by `brightness` and ends at 1; a brightness
    /// below 0 counts as 0.
    static OrbColors palette(bool dark, double brightness);
};

/// Fills a disc whose square has `side`: bright slightly above its centre, with an edge that fades out. Where the
/// light's middle stands high, the last of the fading edge reaches a little beyond the square; cut off there it would
/// show as a flat top.
void drawOrbDisc(Canvas& canvas, Point center, double side, const OrbColors& colors);

/// The orb's disc in the largest square in its place.
struct OrbDisc {
    bool dark;
    double brightness = 1;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
