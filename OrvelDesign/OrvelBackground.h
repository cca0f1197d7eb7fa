#pragma once

#include <optional>

#include "OrvelDesign/OrvelColor.h"

namespace orvel {

/// The grain laid over backgrounds: a tile of noise from the design system's bundle, repeated in both directions.
namespace Grain {
/// The opacity in an environment; absent where no grain is drawn, because the user asked for more contrast or less
/// transparency.
std::optional<double> opacity(const Environment& environment);
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
