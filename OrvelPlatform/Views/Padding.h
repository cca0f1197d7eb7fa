#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// Room round a view.
struct Padding {
    Insets insets {};
    View content;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
