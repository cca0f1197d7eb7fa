#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Face/WidgetFace.h"

namespace orvel {

/// Where the card stands in its window. Round it is room for its shadow and for the ring of the keyboard's focus; a
/// desktop that does not mix windows shows neither, and the card is the window.
struct WindowGeometry {
    /// Points on every side of the card: the shadow reaches so far down, and the ring less.
    static constexpr double roomForShadow = 28;

    Size window; // whole points
    Rect card; // its origin in whole points, its size in whole pixels
    double radius; // of the card's corners, in points; 0 where nothing can shine through them
    double scale; // pixels in a point

    bool operator==(const WindowGeometry&) const = default;
};

/// The card takes the very pixels of a picture that was drawn for it, so that none is moved or mixed.
WindowGeometry windowGeometry(const WidgetFace& face, double scale, bool isComposited);

/// Whether a picture was drawn for a card of this size at this scale.
bool isDrawnFor(const HostPicture& picture, Size card, double scale);

/// A frame within the picture, in the window's points.
Rect placeInWindow(const PictureFrame& frame, const WindowGeometry& geometry, double pointScale);

/// Which action of the picture lies at a place in the window; the later ones lie above.
std::optional<std::size_t> actionAt(const WidgetFace& face, const WindowGeometry& geometry, Point at);

/// The card as rows of whole points, its corners left out: what takes the pointer.
std::vector<Rect> rowsOfCard(const WindowGeometry& geometry);

}
