#pragma once

#include "OrvelDesign/ShadowLayer.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The shadows that a view of one outline casts: layers drawn outside it, in order, whatever their `inset` says. None
/// of them shows through the view itself.
struct DropShadows {
    ShadowLayers layers;
    Outline outline;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
