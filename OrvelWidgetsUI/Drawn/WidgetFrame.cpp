#include "OrvelWidgetsUI/Drawn/WidgetFrame.h"

#include "OrvelPlatform/Views/Primitives.h"

namespace orvel {

View WidgetFrame::body(const Environment&) const
{
    constexpr double topAndBottom = 16;
    const double sides = size == WidgetSize::small ? 16 : 18;
    View inset = Padding { .insets = Insets::sides(sides, topAndBottom), .content = content };
    if (!sentence)
        return inset;
    return Element { .role = ElementRole::text, .label = *sentence, .content = std::move(inset) };
}

}
