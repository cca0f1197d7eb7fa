#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The share of a Focus that is left, as a ring round the orb: it begins at the top and runs clockwise in every layout,
/// as a clock does.
struct WidgetRing {
    double progress; // 0…1; drawn at the nearer end where it is beyond one
    WidgetLook look;

    static constexpr double side = 40; // points

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
