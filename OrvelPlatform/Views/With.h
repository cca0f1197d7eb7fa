#pragma once

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// Sets values of the environment for a view and everything in it:
///
///     With { Environment().with<LayoutDirectionKey>(LayoutDirection::rightToLeft), content }
struct With {
    Environment changes;
    View content;

    Extent measure(const Proposal& proposed, const Environment& environment) const
    {
        return content.measure(proposed, environment.overlaid(changes));
    }

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const
    {
        content.draw(canvas, in, environment.overlaid(changes));
    }
};

}
