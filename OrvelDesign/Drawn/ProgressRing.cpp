#include "OrvelDesign/Drawn/ProgressRing.h"

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/Progress.h"

namespace orvel {

namespace {

ProgressRing::Paints palettePaints(const Environment& environment)
{
    return { Color(Palette::ringTrack.resolve(environment)), Color(Palette::ringProgress.resolve(environment)) };
}

}

Extent ProgressRing::measure(const Proposal&, const Environment&) const
{
    return Size { diameter, diameter };
}

void ProgressRing::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto used = paints ? *paints : palettePaints(environment);
    const Rect ring { in.center().x - diameter / 2, in.center().y - diameter / 2, diameter, diameter };
    canvas.fill(Ring { lineWidth }, ring, used.track);
    if (const double share = clampedProgress(progress); share > 0)
        canvas.stroke(Arc { .start = 0, .sweep = share }, ring.insetBy(lineWidth / 2),
            Stroke { .width = lineWidth, .cap = Stroke::Cap::round }, used.progress);
}

}
