#pragma once

#include "OrvelDesign/BreathMotion.h"

namespace orvel {

/// How the orb looks at an instant: four multipliers, of which 1 means as it is drawn at rest.
struct OrbPose {
    double scale; // of the disc
    double brightness; // of the disc's colours, each channel clamped at 1
    double poolScale; // of the light pool under the disc
    double poolOpacity;

    static const OrbPose rest;
    static const OrbPose exhaled;
    static const OrbPose inhaled;
    static const OrbPose firstInhale;
    static const OrbPose paused;

    /// From `a` at t = 0 to `b` at t = 1, exactly at both ends; `t` outside them is taken for the nearer end.
    static OrbPose mix(const OrbPose& a, const OrbPose& b, double t);

    /// The pose at a progress of a phase; a progress outside 0 to 1 is taken for the nearer end. During a hold the orb
    /// does not move, it only dims a little, linearly.
    static OrbPose breathing(BreathMotion motion, double progress);

    bool operator==(const OrbPose&) const = default;
};

inline constexpr OrbPose OrbPose::rest { .scale = 1, .brightness = 1, .poolScale = 1, .poolOpacity = 1 };
inline constexpr OrbPose OrbPose::exhaled { .scale = 0.94, .brightness = 0.82, .poolScale = 0.8, .poolOpacity = 0.55 };
inline constexpr OrbPose OrbPose::inhaled { .scale = 1.04, .brightness = 1.08, .poolScale = 1.1, .poolOpacity = 1 };
inline constexpr OrbPose OrbPose::firstInhale {
    .scale = 1.01, .brightness = 1.02, .poolScale = 1.01, .poolOpacity = 0.865
};
inline constexpr OrbPose OrbPose::paused { .scale = 1, .brightness = 0.6, .poolScale = 1, .poolOpacity = 0.5 };

}
