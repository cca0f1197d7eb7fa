#pragma once

#include <optional>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A share of something as an arc on a track, from the top clockwise, also where the layout runs from the right: it is
/// a clock, not a line of text. The whole ring lies within `diameter`.
struct ProgressRing {
    struct Paints {
        Paint track;
        Paint progress;
        bool operator==(const Paints&) const = default;
    };

    double progress; // 0 to 1; beyond them the nearer end
    double diameter; // points
    double lineWidth; // points
    std::optional<Paints> paints = std::nullopt; // absent: the palette's

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
