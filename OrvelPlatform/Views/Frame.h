#pragma once

#include <optional>

#include "OrvelPlatform/Views/Alignment.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// How long one side of a frame is: exactly so long, or within limits. Where nothing is said it is as long as its
/// content.
struct FrameLength {
    std::optional<double> least;
    std::optional<double> ideal; // for an ideal proposal
    std::optional<double> most; // infinite: all the room that is offered

    static constexpr FrameLength exactly(double length) { return { length, length, length }; }
    static constexpr FrameLength atLeast(double length) { return { length, {}, {} }; }
    static constexpr FrameLength atMost(double length) { return { {}, {}, length }; }
    static constexpr FrameLength filling() { return { {}, {}, infiniteLength }; }

    bool operator==(const FrameLength&) const = default;
};

/// A place of its own size for a view; the view stands in it by the alignment, and overhangs where it is larger.
struct Frame {
    FrameLength width {};
    FrameLength height {};
    Alignment alignment = Alignment::center;
    View content;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
