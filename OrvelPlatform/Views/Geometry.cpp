#include "OrvelPlatform/Views/Geometry.h"

#include <algorithm>

namespace orvel {

Rect Rect::insetBy(double amount) const
{
    return inset(*this, Insets::all(amount), LayoutDirection::leftToRight);
}

Rect inset(const Rect& outer, const Insets& insets, LayoutDirection direction)
{
    const double left = direction == LayoutDirection::leftToRight ? insets.leading : insets.trailing;
    return { outer.x + left, outer.y + insets.top, std::max(outer.width - insets.leading - insets.trailing, 0.0),
        std::max(outer.height - insets.top - insets.bottom, 0.0) };
}

}
