#pragma once

#include <array>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The phase that a breath is in. `firstInhale` and `topUp` are the two parts of a double breath in: a long first one,
/// then a short one on top.
enum class BreathMotion { inhale, exhale, holdIn, holdOut, firstInhale, topUp };

template <>
inline constexpr std::array<std::string_view, 6> rawValues<BreathMotion> {
    "inhale",
    "exhale",
    "holdIn",
    "holdOut",
    "firstInhale",
    "topUp",
};

}
