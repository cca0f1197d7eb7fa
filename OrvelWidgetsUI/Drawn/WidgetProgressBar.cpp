#include "OrvelWidgetsUI/Drawn/WidgetProgressBar.h"

#include <algorithm>

#include "OrvelPlatform/Views/Alignment.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

Extent WidgetProgressBar::measure(const Proposal& proposed, const Environment&) const
{
    return Size { proposed.width.value_or(0), height };
}

void WidgetProgressBar::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto accented = canvas.accented();
    const WidgetColors colors { look };
    canvas.fill(Capsule {}, in, paint(colors.ringTrack(), look, environment));
    const double filled = std::clamp(progress, 0.0, 1.0) * in.width;
    if (filled <= 0)
        return;
    // However short, its front is round: what would stand out behind the track's start is clipped away.
    const auto direction = environment.get<LayoutDirectionKey>();
    const double length = std::max(filled, in.height);
    const double x = placedX(filled, in.x, in.width, HorizontalAlignment::leading, direction)
        - (direction == LayoutDirection::leftToRight ? length - filled : 0);
    const auto clipped = canvas.clipped(Capsule {}, in);
    canvas.fill(Capsule {}, { x, in.y, length, in.height }, paint(colors.ringProgress(), look, environment));
}

}
