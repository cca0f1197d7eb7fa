#pragma once

#include <array>

#include "OrvelDesign/IdentityTone.h"
#include "OrvelDesign/NamedToken.h"
#include "OrvelDesign/OrvelColor.h"
#include "OrvelDesign/TokensColor.h"

namespace orvel {

/// The named colours of the interface; each wraps the token of its own name. The tones of Blocks and Lists are no
/// members: they are reached through `identity`.
namespace Palette {
inline constexpr OrvelColor bg { Tokens::Color::bg, "bg" };
inline constexpr OrvelColor bgSunken { Tokens::Color::bgSunken, "bg-sunken" };
inline constexpr OrvelColor surface1 { Tokens::Color::surface1, "surface-1" };
inline constexpr OrvelColor surface2 { Tokens::Color::surface2, "surface-2" };
inline constexpr OrvelColor surfacePlum { Tokens::Color::surfacePlum, "surface-plum" };
inline constexpr OrvelColor line { Tokens::Color::line, "line" };
inline constexpr OrvelColor textPrimary { Tokens::Color::textPrimary, "text-primary" };
inline constexpr OrvelColor textSecondary { Tokens::Color::textSecondary, "text-secondary" };
inline constexpr OrvelColor accentFill { Tokens::Color::accentFill, "accent-fill" };
inline constexpr OrvelColor accentOn { Tokens::Color::accentOn, "accent-on" };
inline constexpr OrvelColor accentText { Tokens::Color::accentText, "accent-text" };
inline constexpr OrvelColor ringTrack { Tokens::Color::ringTrack, "ring-track" };
inline constexpr OrvelColor ringProgress { Tokens::Color::ringProgress, "ring-progress" };
inline constexpr OrvelColor toggleOn { Tokens::Color::toggleOn, "toggle-on" };
inline constexpr OrvelColor noticeFill { Tokens::Color::noticeFill, "notice-fill" };
inline constexpr OrvelColor noticeLine { Tokens::Color::noticeLine, "notice-line" };
inline constexpr OrvelColor noticeText { Tokens::Color::noticeText, "notice-text" };
inline constexpr OrvelColor noticeIcon { Tokens::Color::noticeIcon, "notice-icon" };
inline constexpr OrvelColor orbCore { Tokens::Color::orbCore, "orb-core" };
inline constexpr OrvelColor orbBody { Tokens::Color::orbBody, "orb-body" };
inline constexpr OrvelColor orbGlow { Tokens::Color::orbGlow, "orb-glow" };
inline constexpr OrvelColor orbRim { Tokens::Color::orbRim, "orb-rim" };
inline constexpr OrvelColor orbPool { Tokens::Color::orbPool, "orb-pool" };
inline constexpr OrvelColor hoverFill { Tokens::Color::hoverFill, "hover-fill" };
inline constexpr OrvelColor pressedFill { Tokens::Color::pressedFill, "pressed-fill" };
inline constexpr OrvelColor selectionFill { Tokens::Color::selectionFill, "selection-fill" };
inline constexpr OrvelColor focusRing { Tokens::Color::focusRing, "focus-ring" };
inline constexpr OrvelColor veil { Tokens::Color::veil, "veil" };
inline constexpr OrvelColor popoverFill { Tokens::Color::popoverFill, "popover-fill" };

/// Every member by name, in the order of the swatch sheet.
inline constexpr std::array all {
    ORVEL_TOKEN(bg),
    ORVEL_TOKEN(bgSunken),
    ORVEL_TOKEN(surface1),
    ORVEL_TOKEN(surface2),
    ORVEL_TOKEN(surfacePlum),
    ORVEL_TOKEN(line),
    ORVEL_TOKEN(textPrimary),
    ORVEL_TOKEN(textSecondary),
    ORVEL_TOKEN(accentFill),
    ORVEL_TOKEN(accentOn),
    ORVEL_TOKEN(accentText),
    ORVEL_TOKEN(ringTrack),
    ORVEL_TOKEN(ringProgress),
    ORVEL_TOKEN(toggleOn),
    ORVEL_TOKEN(noticeFill),
    ORVEL_TOKEN(noticeLine),
    ORVEL_TOKEN(noticeText),
    ORVEL_TOKEN(noticeIcon),
    ORVEL_TOKEN(orbCore),
    ORVEL_TOKEN(orbBody),
    ORVEL_TOKEN(orbGlow),
    ORVEL_TOKEN(orbRim),
    ORVEL_TOKEN(orbPool),
    ORVEL_TOKEN(hoverFill),
    ORVEL_TOKEN(pressedFill),
    ORVEL_TOKEN(selectionFill),
    ORVEL_TOKEN(focusRing),
    ORVEL_TOKEN(veil),
    ORVEL_TOKEN(popoverFill),
};

inline OrvelColor identity(IdentityTone tone)
{
    return color(tone);
}
}

}
