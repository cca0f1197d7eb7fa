#include "OrvelPlatform/Views/Shape.h"

namespace orvel {

Extent Shape::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void Shape::draw(Canvas& canvas, const Rect& in, const Environment&) const
{
    if (stroke)
        canvas.stroke(outline, in, *stroke, paint);
    else
        canvas.fill(outline, in, paint);
}

}
