#include "OrvelDesign/Drawn/OrvelBackground.h"

namespace orvel {

namespace {

void drawGrain(Canvas& canvas, const Rect& in, double opacity)
{
    canvas.fill(Rectangle {}, in, Texture { "grain", opacity });
}

}

Extent OrvelBackground::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void OrvelBackground::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto paint = backgroundPaint(fill, environment);
    canvas.fill(Rectangle {}, in, Color(paint.fill));
    if (paint.grainOpacity)
        drawGrain(canvas, in, *paint.grainOpacity);
}

Extent GrainTexture::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void GrainTexture::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    if (const auto opacity = Grain::opacity(environment))
        drawGrain(canvas, in, *opacity);
}

}
