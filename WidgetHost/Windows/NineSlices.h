#pragma once

#include <vector>

#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// A part of a picture and where it is painted, both in whole pixels.
struct Slice {
    Rect from;
    Rect to;
    bool operator==(const Slice&) const = default;
};

/// How a small picture of a frame becomes one of any size: its corners stay as they are, and the one row and the one
/// column of pixels between them are drawn out. Its middle is empty and left out. The source is a square of twice
/// `corner` and one pixel more; a target too small for the corners has them cut in its middle.
std::vector<Slice> frameSlices(double corner, Size target);

}
