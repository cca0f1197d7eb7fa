#pragma once

#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// Words. It takes as many lines as the offered width asks for, at most `lineLimit`, and as few as the offered height
/// holds (at least one); what goes beyond ends in an ellipsis. It is an element for assistive technology.
struct Text {
    /// A stretch in one style; without a paint of its own it has the text's.
    struct Run {
        std::string text;
        TextStyle style;
        std::optional<Paint> paint = std::nullopt;
        bool operator==(const Run&) const = default;
    };

    std::vector<Run> runs;
    Paint paint;
    int lineLimit = 0; // 0: none
    TextAlignment alignment = TextAlignment::leading;
    bool balanced = false; // breaks into lines of about one length; for titles

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
