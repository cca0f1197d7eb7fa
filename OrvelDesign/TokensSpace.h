#pragma once

#include <array>

#include "OrvelDesign/NamedToken.h"

namespace orvel {

/// Distances and sizes in points. The numbered steps follow a 4-point grid: sN is N × 4. The scale skips s7, s9, s11
/// and s13 to s15 on purpose.
namespace Tokens::Space {
inline constexpr double s1 = 4, s2 = 8, s3 = 12, s4 = 16, s5 = 20, s6 = 24, s8 = 32, s10 = 40, s12 = 48, s16 = 64;

inline constexpr double touchMin = 44; // the least side of what a finger hits
inline constexpr double buttonHeight = 52;

// Heights of controls in their five sizes.
inline constexpr double macControlMini = 16;
inline constexpr double macControlSmall = 20;
inline constexpr double macControlRegular = 24;
inline constexpr double macControlLarge = 32;
inline constexpr double macControlXl = 40;

inline constexpr double macRow = 32;
inline constexpr double macRowIcon = 40;
inline constexpr double macSidebarRow = 28;
inline constexpr double macSidebarWidth = 220;
inline constexpr double macPopoverWidth = 320;
inline constexpr double macContentMargin = 24;
inline constexpr double macWindowMinWidth = 820;
inline constexpr double macWindowMinHeight = 560;
inline constexpr double macVeilMinWidth = 560;
inline constexpr double macVeilMinHeight = 420;
inline constexpr double macPauseButton = 44;
inline constexpr double macMenubarGlyph = 16; // the side of the menu bar's orb

inline constexpr std::array all {
    ORVEL_TOKEN(s1),
    ORVEL_TOKEN(s2),
    ORVEL_TOKEN(s3),
    ORVEL_TOKEN(s4),
    ORVEL_TOKEN(s5),
    ORVEL_TOKEN(s6),
    ORVEL_TOKEN(s8),
    ORVEL_TOKEN(s10),
    ORVEL_TOKEN(s12),
    ORVEL_TOKEN(s16),
    ORVEL_TOKEN(touchMin),
    ORVEL_TOKEN(buttonHeight),
    ORVEL_TOKEN(macControlMini),
    ORVEL_TOKEN(macControlSmall),
    ORVEL_TOKEN(macControlRegular),
    ORVEL_TOKEN(macControlLarge),
    ORVEL_TOKEN(macControlXl),
    ORVEL_TOKEN(macRow),
    ORVEL_TOKEN(macRowIcon),
    ORVEL_TOKEN(macSidebarRow),
    ORVEL_TOKEN(macSidebarWidth),
    ORVEL_TOKEN(macPopoverWidth),
    ORVEL_TOKEN(macContentMargin),
    ORVEL_TOKEN(macWindowMinWidth),
    ORVEL_TOKEN(macWindowMinHeight),
    ORVEL_TOKEN(macVeilMinWidth),
    ORVEL_TOKEN(macVeilMinHeight),
    ORVEL_TOKEN(macPauseButton),
    ORVEL_TOKEN(macMenubarGlyph),
};
}

/// Corner radii in points.
namespace Tokens::Radius {
inline constexpr double xs = 8;
inline constexpr double sm = 12;
inline constexpr double md = 18; // not 16: the step between sm and lg is uneven on purpose
inline constexpr double lg = 24;
inline constexpr double xl = 32;
inline constexpr double full = 999; // makes a capsule of any control
inline constexpr double macRadiusField = 8;
inline constexpr double macRadiusWindow = 16;
inline constexpr double macRadiusPopover = 20;

inline constexpr std::array all {
    ORVEL_TOKEN(xs),
    ORVEL_TOKEN(sm),
    ORVEL_TOKEN(md),
    ORVEL_TOKEN(lg),
    ORVEL_TOKEN(xl),
    ORVEL_TOKEN(full),
    ORVEL_TOKEN(macRadiusField),
    ORVEL_TOKEN(macRadiusWindow),
    ORVEL_TOKEN(macRadiusPopover),
};
}

}
