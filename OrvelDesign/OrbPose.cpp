#include "OrvelDesign/OrbPose.h"

#include "OrvelDesign/OrvelMotion.h"
#include "OrvelDesign/Progress.h"

namespace orvel {

OrbPose OrbPose::mix(const OrbPose& a, const OrbPose& b, double t)
{
    const double share = clampedProgress(t);
    if (share == 1)
        return b; // a + (b − a) may miss b by its last bit
    const auto between = [&](double OrbPose::*field) { return a.*field + (b.*field - a.*field) * share; };
    return {
        .scale = between(&OrbPose::scale),
        .brightness = between(&OrbPose::brightness),
        .poolScale = between(&OrbPose::poolScale),
        .poolOpacity = between(&OrbPose::poolOpacity),
    };
}

OrbPose OrbPose::breathing(BreathMotion motion, double progress)
{
    const double raw = clampedProgress(progress);
    const double eased = OrvelMotion::easeBreath(raw);
    const auto dimmed = [&](OrbPose held, double by) {
        held.brightness -= by * raw;
        return held;
    };
    switch (motion) {
    case BreathMotion::inhale:
        return mix(exhaled, inhaled, eased);
    case BreathMotion::exhale:
        return mix(inhaled, exhaled, eased);
    case BreathMotion::holdIn:
        return dimmed(inhaled, 0.04);
    case BreathMotion::holdOut:
        return dimmed(exhaled, 0.02);
    case BreathMotion::firstInhale:
        return mix(exhaled, firstInhale, eased);
    case BreathMotion::topUp:
        return mix(firstInhale, inhaled, eased);
    }
    return rest;
}

}
