#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The share of a running span that is left, as a bar that fills from the leading edge.
struct WidgetProgressBar {
    double progress; // 0…1; drawn at the nearer end where it is beyond one
    WidgetLook look;

    static constexpr double height = 4;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
