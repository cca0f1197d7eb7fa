#include "OrvelPlatform/Views/Layering.h"

namespace orvel {

namespace {

void drawWithin(const View& view, const View& of, Alignment alignment, Canvas& canvas, const Rect& in,
    const Environment& environment)
{
    if (view.isNothing())
        return;
    const auto proposed = Proposal::of(in.size());
    const auto place = placed(view.measure(proposed, environment), in, alignment, environment.get<LayoutDirectionKey>(),
        of.measure(proposed, environment));
    view.draw(canvas, place, environment);
}

}

void Overlay::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    content.draw(canvas, in, environment);
    drawWithin(front, content, alignment, canvas, in, environment);
}

void Background::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    drawWithin(back, content, alignment, canvas, in, environment);
    content.draw(canvas, in, environment);
}

}
