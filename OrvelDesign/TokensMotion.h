#pragma once

#include <array>

#include "OrvelDesign/Bezier.h"
#include "OrvelDesign/NamedToken.h"

namespace orvel {

/// Durations in seconds. The phases of a breath are what the application builds its breath patterns from.
namespace Tokens::Duration {
inline constexpr double breathCalmIn = 5.5;
inline constexpr double breathCalmOut = 5.5;
inline constexpr double breathResetIn = 2.5; // the first of two breaths in
inline constexpr double breathResetTopup = 1.0; // the short second one
inline constexpr double breathResetOut = 6.5;
inline constexpr double breathGroundPhase = 4.0; // each of the four phases

inline constexpr double cueFadeIn = 0.5;
inline constexpr double cueFadeOut = 0.4; // a cue leaves faster than it comes
inline constexpr double pauseCrossfade = 0.6;
inline constexpr double orbHandoff = 1.2; // the orb moving from one screen to the next
inline constexpr double controlsFade = 0.3;
inline constexpr double bloom = 1.6;
inline constexpr double rmCrossfade = 0.4; // stands in for movement under reduced motion

inline constexpr double macHoverIn = 0.12;
inline constexpr double macVeilIn = 0.4;
inline constexpr double macVeilLift = 0.4;
inline constexpr double macVeilReturn = 0.6;
inline constexpr double macOrbBreathe = 11.0; // one whole idle breath
static_assert(macOrbBreathe == breathCalmIn + breathCalmOut);

inline constexpr std::array all {
    ORVEL_TOKEN(breathCalmIn),
    ORVEL_TOKEN(breathCalmOut),
    ORVEL_TOKEN(breathResetIn),
    ORVEL_TOKEN(breathResetTopup),
    ORVEL_TOKEN(breathResetOut),
    ORVEL_TOKEN(breathGroundPhase),
    ORVEL_TOKEN(cueFadeIn),
    ORVEL_TOKEN(cueFadeOut),
    ORVEL_TOKEN(pauseCrossfade),
    ORVEL_TOKEN(orbHandoff),
    ORVEL_TOKEN(controlsFade),
    ORVEL_TOKEN(bloom),
    ORVEL_TOKEN(rmCrossfade),
    ORVEL_TOKEN(macHoverIn),
    ORVEL_TOKEN(macVeilIn),
    ORVEL_TOKEN(macVeilLift),
    ORVEL_TOKEN(macVeilReturn),
    ORVEL_TOKEN(macOrbBreathe),
};
}

/// Timing curves.
namespace Tokens::Easing {
inline constexpr Bezier easeBreath { 0.37, 0, 0.63, 1 }; // every breath in and out
inline constexpr Bezier easeHold { 0, 0, 1, 1 }; // holds: a straight line
inline constexpr Bezier easeFade { 0.4, 0, 0.2, 1 }; // fades and crossfades

inline constexpr std::array all {
    ORVEL_TOKEN(easeBreath),
    ORVEL_TOKEN(easeHold),
    ORVEL_TOKEN(easeFade),
};
}

}
