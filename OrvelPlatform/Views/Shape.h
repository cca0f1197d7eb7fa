#pragma once

#include <optional>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// An outline filled, or stroked where it has a stroke. It takes all the room it is offered and none by itself.
struct Shape {
    static constexpr bool isQuicklyMeasured = true;

    Outline outline;
    Paint paint;
    std::optional<Stroke> stroke = std::nullopt;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
