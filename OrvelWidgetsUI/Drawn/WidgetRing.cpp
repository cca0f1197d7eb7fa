#include "OrvelWidgetsUI/Drawn/WidgetRing.h"

#include <algorithm>

#include "OrvelPlatform/Views/Alignment.h"
#include "OrvelWidgetsUI/Drawn/WidgetOrb.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

Extent WidgetRing::measure(const Proposal&, const Environment&) const
{
    return Size { side, side };
}

void WidgetRing::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    constexpr double trackWidth = 2, arcWidth = 4, orbSide = 24;
    const auto accented = canvas.accented();
    const auto silent = canvas.silent();
    const WidgetColors colors { look };
    const auto place = placed(Size { side, side }, in, Alignment::center, LayoutDirection::leftToRight);
    const auto line = place.insetBy(arcWidth / 2); // track and arc share their middle
    canvas.stroke(Ellipse {}, line, { .width = trackWidth }, paint(colors.ringTrack(), look, environment));
    const double sweep = std::clamp(progress, 0.0, 1.0);
    if (sweep > 0)
        canvas.stroke(Arc { .start = 0, .sweep = sweep }, line, { .width = arcWidth, .cap = Stroke::Cap::round },
            paint(colors.ringProgress(), look, environment));
    View(WidgetOrb { .size = orbSide, .look = look }).draw(canvas, place.insetBy((side - orbSide) / 2), environment);
}

}
