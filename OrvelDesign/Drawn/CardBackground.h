#pragma once

#include "OrvelDesign/CardBackground.h"
#include "OrvelDesign/CardShape.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A card's surface: its fill in a rounded rectangle, with the edge that it gets in its environment. It takes all the
/// room it is offered; put it behind a card's content.
struct CardBackground {
    Paint fill;
    double radius; // points
    LitEdge edge = LitEdge::resting;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// A card's outline in a rectangle, for a canvas.
struct PlacedOutline {
    Outline outline;
    Rect in;
};
PlacedOutline placed(const CardShape& shape, const Rect& in);

/// A layer as the canvas draws it.
Shadow shadow(const ShadowLayer& layer);

}
