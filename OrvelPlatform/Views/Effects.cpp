#include "OrvelPlatform/Views/Effects.h"

namespace orvel {

void Opacity::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto faded = canvas.faded(opacity);
    content.draw(canvas, in, environment);
}

void Scale::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto magnified = canvas.magnified(factor, in.center());
    content.draw(canvas, in, environment);
}

void Accentable::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto accented = canvas.accented();
    content.draw(canvas, in, environment);
}

void Clipped::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto clipped = canvas.clipped(outline, in);
    content.draw(canvas, in, environment);
}

}
