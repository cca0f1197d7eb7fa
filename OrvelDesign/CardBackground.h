#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/ShadowLayer.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// Which edge a card asks for.
enum class LitEdge { resting, active, none };

template <>
inline constexpr std::array<std::string_view, 3> rawValues<LitEdge> { "resting", "active", "none" };

/// A plain line along the inside of a card's outline.
struct CardBorder {
    double width; // points
    RGBA color;
    bool operator==(const CardBorder&) const = default;
};

/// The edge that a card gets: layers in drawing order, those with `inset` inside its outline and the others outside.
struct CardEdge {
    ShadowLayers layers;
    std::optional<CardBorder> border;
    bool operator==(const CardEdge&) const = default;
};

/// The edge of a card's background. Under increased contrast no card is lit, whatever it asks for: light that fades out
/// does not show where a card ends, so a line does.
CardEdge cardEdge(LitEdge edge, ColorFlags flags);

}
