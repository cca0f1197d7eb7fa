#include "OrvelDesign/Drawn/FocusRing.h"

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"

namespace orvel {

namespace {

/// The line keeps one distance from the control round its corners too.
Outline grown(const Outline& outline, double amount)
{
    const auto* rounded = std::get_if<RoundedRectangle>(&outline);
    return rounded ? RoundedRectangle { rounded->radius + amount } : outline;
}

}

void FocusRing::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    content.draw(canvas, in, environment);
    if (!isFocused && environment.get<OrvelInteractionPreviewKey>() != InteractionPreview::focused)
        return;
    constexpr double toCentreLine = outset + width / 2;
    canvas.stroke(grown(outline, toCentreLine), in.insetBy(-toCentreLine), Stroke { width },
        Color(Palette::focusRing.resolve(environment)));
}

}
