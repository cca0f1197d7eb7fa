#pragma once

#include <functional>
#include <string>
#include <vector>

#include "OrvelDesign/ColorPair.h"

namespace orvel {

/// A colour in every setting.
using Ink = std::function<RGBA(ColorFlags)>;

/// What something is drawn on: inks from the lowest up, the lowest opaque.
struct Surface {
    std::string name;
    std::vector<Ink> layers;

    RGBA color(ColorFlags flags) const;
};

/// Something drawn on a surface.
struct Pair {
    std::string name;
    Ink ink;
    Surface surface;

    double ratio(ColorFlags flags) const;
};

/// Pairs of which the same contrast is asked.
struct Section {
    std::string title;
    std::string about;
    double required;
    std::vector<Pair> pairs;
};

/// Every use of text and of meaningful marks in the product's surfaces.
std::vector<Section> sections();

}
