#pragma once

#include <optional>

#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Face/WidgetFace.h"

namespace orvel {

/// What of a window has to be made anew when it shows another face.
struct FaceChange {
    bool card = false; // all of it: its size, its ground or its edge is another one
    bool notice = false; // the card's foot
    bool parts = false; // what is read aloud, or acts
    std::optional<Rect> pixels {}; // of the picture: the smallest rectangle round those that differ

    bool operator==(const FaceChange&) const = default;
};

FaceChange change(const WidgetFace& before, const WidgetFace& after);

/// The smallest rectangle round the pixels that differ in any layer; absent where none does. All of it where the two
/// cannot be compared pixel by pixel.
std::optional<Rect> differingPixels(const HostPicture& before, const HostPicture& after);

}
