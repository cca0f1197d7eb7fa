#include "OrvelPlatform/Views/Shape.h"

namespace orvel {

Extent Shape::measure(const Proposal& proposed, const Environment&) const
{
    return Size { proposed.width.value_or(0), proposed.height.value_or(0) };
}

void Shape::draw(Canvas& canvas, const Rect& in, const Environment&) const
{
    if (stroke)
        canvas.stroke(outline, in, *stroke, paint);
    else
        canvas.fill(outline, in, paint);
}

}
