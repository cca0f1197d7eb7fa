#pragma once

#include "OrvelPlatform/Views/Extent.h"
#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

enum class HorizontalAlignment { leading, center, trailing };
enum class VerticalAlignment { top, center, bottom, firstBaseline, lastBaseline };

/// Where something stands in a place of another size.
struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;

    static const Alignment center, leading, trailing, top, bottom, topLeading, topTrailing, bottomLeading,
        bottomTrailing;

    bool operator==(const Alignment&) const = default;
};

inline constexpr Alignment Alignment::center { HorizontalAlignment::center, VerticalAlignment::center };
inline constexpr Alignment Alignment::leading { HorizontalAlignment::leading, VerticalAlignment::center };
inline constexpr Alignment Alignment::trailing { HorizontalAlignment::trailing, VerticalAlignment::center };
inline constexpr Alignment Alignment::top { HorizontalAlignment::center, VerticalAlignment::top };
inline constexpr Alignment Alignment::bottom { HorizontalAlignment::center, VerticalAlignment::bottom };
inline constexpr Alignment Alignment::topLeading { HorizontalAlignment::leading, VerticalAlignment::top };
inline constexpr Alignment Alignment::topTrailing { HorizontalAlignment::trailing, VerticalAlignment::top };
inline constexpr Alignment Alignment::bottomLeading { HorizontalAlignment::leading, VerticalAlignment::bottom };
inline constexpr Alignment Alignment::bottomTrailing { HorizontalAlignment::trailing, VerticalAlignment::bottom };

/// The left edge of something `width` wide in a place. What is wider than its place overhangs by its alignment.
double placedX(double width, double left, double placeWidth, HorizontalAlignment alignment, LayoutDirection direction);

/// The rectangle of something in a place. `baselines` are those that a baseline alignment lines up with: the place's
/// own extent. Only leading and trailing turn with the layout's direction.
Rect placed(
    const Extent& child, const Rect& place, Alignment alignment, LayoutDirection direction, const Extent& baselines);

/// The same where there is nothing to line baselines up with: they stand at the place's top and bottom.
Rect placed(const Extent& child, const Rect& place, Alignment alignment, LayoutDirection direction);

}
