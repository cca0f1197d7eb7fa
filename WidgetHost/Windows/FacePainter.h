#pragma once

#include <array>
#include <optional>

#include "WidgetHost/Windows/CardViews.h"
#include "WidgetHost/Windows/WindowPictures.h"

struct _cairo;

namespace orvel {

/// Everything that is seen in a window.
struct PaintedFace {
    const WidgetFace& face;
    const WindowGeometry& geometry;
    CardGround ground;
    const WindowPictures::Frame* frame; // null: the card has no edge
    std::array<const WindowPictures::Placed*, 3> pictures; // over it, in order; null: none
    bool isRingedInside; // the whole has the keyboard, and nothing can be seen round it
    std::optional<Rect> pressed; // a button that is held down, in the window's points
};

/// Paints a window, as much of it as the context's clip lets through. A picture that was drawn for the window's pixels
/// is copied as it is.
void paint(_cairo* context, const PaintedFace& painted);

/// Leaves only what lies below to be seen.
void paintNothing(_cairo* context);

}
