#pragma once

#include <array>

#include "OrvelDesign/NamedToken.h"
#include "OrvelDesign/ShadowLayer.h"
#include "OrvelDesign/TokensColor.h"

namespace orvel {

namespace Tokens::Opacity {
inline constexpr double disabled = 0.5; // any disabled control
inline constexpr double grainDusk = 0.3;
inline constexpr double grainDawn = 0.16;

inline constexpr std::array all {
    ORVEL_TOKEN(disabled),
    ORVEL_TOKEN(grainDusk),
    ORVEL_TOKEN(grainDawn),
};
}

/// The two inner lines of light that edges are made of, one point thick.
namespace EdgeLight {
/// Along the top edge.
constexpr ShadowLayer top(RGBA color)
{
    return { .inset = true, .x = 0, .y = 1, .blur = 0, .spread = 0, .color = color };
}

/// All the way round.
constexpr ShadowLayer hairline(RGBA color)
{
    return { .inset = true, .x = 0, .y = 0, .blur = 0, .spread = 1, .color = color };
}
}

/// Shadows and lit edges. Dark, an edge is lit by the warm accent; light, by white with a faint ink hairline and, only
/// there, a soft drop outside.
namespace Tokens::Shadow {
/// A card at rest: a thin light line along the top inside edge.
inline constexpr ShadowPair litEdge {
    .dusk = {
        EdgeLight::top(TokenBase::warmDusk.withAlpha(0.22)),
        EdgeLight::hairline(TokenBase::white.withAlpha(0.05)),
    },
    .dawn = {
        EdgeLight::top(TokenBase::white.withAlpha(0.9)),
        ShadowLayer { .inset = false, .x = 0, .y = 1, .blur = 2, .spread = 0, .color = TokenBase::ink.withAlpha(0.06) },
        EdgeLight::hairline(TokenBase::ink.withAlpha(0.06)),
    },
};

/// The same edge on the active or selected card.
inline constexpr ShadowPair litEdgeActive {
    .dusk = {
        EdgeLight::top(TokenBase::warmDusk.withAlpha(0.45)),
        EdgeLight::hairline(TokenBase::warmDusk.withAlpha(0.18)),
    },
    .dawn = {
        EdgeLight::top(TokenBase::white),
        ShadowLayer {
            .inset = false, .x = 0, .y = 2, .blur = 10, .spread = 0, .color = Color::orbRim.dawn.withAlpha(0.18) },
        EdgeLight::hairline(Color::orbRim.dawn.withAlpha(0.35)),
    },
};

/// A sheet rising from the bottom casts its shadow upward.
inline constexpr ShadowPair sheet {
    .dusk = { ShadowLayer {
        .inset = false, .x = 0, .y = -12, .blur = 40, .spread = 0, .color = { 0.0314, 0.0235, 0.0784, 0.5 } } },
    .dawn = { ShadowLayer {
        .inset = false, .x = 0, .y = -12, .blur = 40, .spread = 0, .color = TokenBase::ink.withAlpha(0.12) } },
};

inline constexpr std::array all {
    ORVEL_TOKEN(litEdge),
    ORVEL_TOKEN(litEdgeActive),
    ORVEL_TOKEN(sheet),
};
}

}
