#include "OrvelDesign/Drawn/DropShadows.h"

#include "OrvelDesign/Drawn/CardBackground.h"

namespace orvel {

void DropShadows::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    for (const auto& layer : layers) {
        auto outer = shadow(layer);
        outer.inset = false;
        canvas.shadow(outline, in, outer);
    }
    content.draw(canvas, in, environment);
}

}
