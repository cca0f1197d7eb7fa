#pragma once

#include "OrvelDesign/OrbPose.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The orb, in a square of `size` points. Its light pool reaches beyond that.
///
/// Under reduced motion disc and pool keep their sizes, and only their brightness follows the breath. Under reduced
/// transparency there is no pool. The orb is decoration: it is no element, the words round it carry the meaning.
struct Orb {
    double size;
    OrbPose pose = OrbPose::rest;
    bool showsPool = true;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
