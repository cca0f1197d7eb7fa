#include "OrvelPlatform/Views/Accessibility.h"

namespace orvel {

void Element::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    canvas.add(ElementMark { role, label, in });
    const auto silent = canvas.silent();
    content.draw(canvas, in, environment);
}

void Hidden::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto silent = canvas.silent();
    content.draw(canvas, in, environment);
}

void Action::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    canvas.add(ActionMark { label, in, intent, parameters });
    content.draw(canvas, in, environment);
}

}
