#include "OrvelDesign/Drawn/OrvelBackground.h"

namespace orvel {

Extent OrvelBackground::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void OrvelBackground::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto [ground, grainOpacity] = backgroundPaint(fill, environment);
    const auto paint = grainOpacity ? Paint(Texture { "grain", ground, *grainOpacity }) : Paint(Color(ground));
    canvas.fill(Rectangle {}, in, paint);
}

}
