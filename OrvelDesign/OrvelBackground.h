#pragma once

#include <optional>

#include "OrvelDesign/OrvelColor.h"

namespace orvel {

/// The grain laid over backgrounds: a tile of noise, repeated in both directions.
namespace Grain {
inline constexpr int tileSide = 128; // points; large enough that no repeat shows

/// The opacity in an environment; absent where no grain is drawn, because the user asked for more contrast or less
/// transparency.
std::optional<double> opacity(const Environment& environment);

/// The tile's grey at a point, 0 to 1 and 0.5 on average, the same at every call. Coordinates beyond the tile repeat
/// it. Overlaid on a colour, grey below 0.5 darkens and above 0.5 lightens.
double grey(int x, int y);
}

/// What a full background is painted with.
struct BackgroundPaint {
    RGBA fill;
    std::optional<double> grainOpacity; // absent: no grain over it
    bool operator==(const BackgroundPaint&) const = default;
};

/// The paint of a full background in a palette colour, as it is in an environment.
BackgroundPaint backgroundPaint(const OrvelColor& fill, const Environment& environment);

}
