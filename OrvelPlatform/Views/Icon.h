#pragma once

#include <string>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A symbol by its name, in a square. Icons are decoration: the words beside them carry the meaning.
struct Icon {
    static constexpr bool isQuicklyMeasured = true;

    std::string name;
    std::string fallback; // shown where nothing is known by `name`
    double size = 16; // points
    int weight = 400; // of its strokes, to go with text of that weight
    Paint paint;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
