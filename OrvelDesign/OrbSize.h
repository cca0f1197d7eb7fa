#pragma once

#include <array>

#include "OrvelDesign/NamedToken.h"

namespace orvel {

/// The side in points of the orb's disc, wherever the orb appears.
namespace OrbSize {
inline constexpr double capsule = 26;
inline constexpr double resting = 56;
inline constexpr double emptyState = 64;
inline constexpr double floating = 92;

inline constexpr double veilPicker = 112;
inline constexpr double veilPlayer = 196;
inline constexpr double veilCheckIn = 84;
inline constexpr double veilEnded = 96;

inline constexpr double breathePicker = 120;
inline constexpr double breathePlayer = 200;

inline constexpr double tabPicker = 100;
inline constexpr double tabPlayer = 180;
inline constexpr double tabCheckIn = 80;
inline constexpr double tabEnded = 88;

inline constexpr double roomPicker = 168;
inline constexpr double roomPlayer = 280;
inline constexpr double roomCheckIn = 120;
inline constexpr double roomEnded = 140;

inline constexpr std::array all {
    ORVEL_TOKEN(capsule),
    ORVEL_TOKEN(resting),
    ORVEL_TOKEN(emptyState),
    ORVEL_TOKEN(floating),
    ORVEL_TOKEN(veilPicker),
    ORVEL_TOKEN(veilPlayer),
    ORVEL_TOKEN(veilCheckIn),
    ORVEL_TOKEN(veilEnded),
    ORVEL_TOKEN(breathePicker),
    ORVEL_TOKEN(breathePlayer),
    ORVEL_TOKEN(tabPicker),
    ORVEL_TOKEN(tabPlayer),
    ORVEL_TOKEN(tabCheckIn),
    ORVEL_TOKEN(tabEnded),
    ORVEL_TOKEN(roomPicker),
    ORVEL_TOKEN(roomPlayer),
    ORVEL_TOKEN(roomCheckIn),
    ORVEL_TOKEN(roomEnded),
};
}

}
