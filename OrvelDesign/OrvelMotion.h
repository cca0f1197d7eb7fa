#pragma once

#include "OrvelDesign/Bezier.h"
#include "OrvelDesign/TokensMotion.h"
#include "OrvelPlatform/Base/Date.h"

namespace orvel {

/// The small functions of motion that several places share.
namespace OrvelMotion {
inline constexpr Bezier breathCurve = Tokens::Easing::easeBreath;
inline constexpr Bezier fadeCurve = Tokens::Easing::easeFade;

/// The breath curve at a progress, which outside 0 to 1 is taken for the nearer end.
double easeBreath(double progress);

/// The opacity of a cue's text during one phase of a breath: it fades in at the phase's start and out at its end. Where
/// the phase is too short for both, the lower of the two holds, so that the text never jumps.
double cueOpacity(Seconds elapsed, Seconds phaseDuration);

/// How full the idle breath of the menu bar's orb is at a time, 0 to 1. Only the distance between two times matters,
/// and a time may be negative. Under reduced motion always 1.
double menuBarBreath(Seconds at, bool reduceMotion);
}

}
