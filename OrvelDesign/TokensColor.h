#pragma once

#include <array>

#include "OrvelDesign/ColorPair.h"
#include "OrvelDesign/NamedToken.h"

namespace orvel {

/// The colours that several tokens share on purpose, differing in their alpha only.
namespace TokenBase {
inline constexpr RGBA white { 1, 1, 1, 1 };
inline constexpr RGBA cream { 0.9569, 0.9255, 0.8745, 1 }; // what is written and drawn on dusk
inline constexpr RGBA ink { 0.149, 0.1333, 0.2118, 1 }; // the same on dawn
inline constexpr RGBA warmDusk { 0.9725, 0.7882, 0.5843, 1 }; // the warm accent
inline constexpr RGBA warmDawn { 0.5608, 0.3059, 0.1098, 1 };
}

/// Colours, named for what they are for. Only `line` and `textSecondary` know more contrast, only the two translucent
/// surfaces, `veil` and `popoverFill`, know less transparency; `veil` has all six variants.
namespace Tokens::Color {
inline constexpr ColorPair bg { { 0.0902, 0.0824, 0.1647, 1 }, { 0.9569, 0.9333, 0.8941, 1 } };
inline constexpr ColorPair bgSunken { { 0.0745, 0.0667, 0.1412, 1 }, { 0.9255, 0.8941, 0.8431, 1 } };
inline constexpr ColorPair surface1 { { 0.1333, 0.1216, 0.2157, 1 }, { 0.9843, 0.9725, 0.949, 1 } };
inline constexpr ColorPair surface2 { { 0.1725, 0.1569, 0.2627, 1 }, TokenBase::white };
inline constexpr ColorPair surfacePlum { { 0.2275, 0.1725, 0.2784, 1 }, { 0.9294, 0.8902, 0.9255, 1 } };
inline constexpr ColorPair line {
    .dusk = TokenBase::cream.withAlpha(0.1),
    .dawn = TokenBase::ink.withAlpha(0.1),
    .duskHighContrast = TokenBase::cream.withAlpha(0.2),
    .dawnHighContrast = TokenBase::ink.withAlpha(0.2),
};
inline constexpr ColorPair textPrimary { TokenBase::cream, TokenBase::ink };
inline constexpr ColorPair textSecondary {
    .dusk = { 0.6627, 0.6353, 0.7216, 1 },
    .dawn = { 0.3608, 0.3333, 0.4275, 1 },
    .duskHighContrast = RGBA { 0.8627, 0.8353, 0.8863, 1 },
    .dawnHighContrast = RGBA { 0.2431, 0.2196, 0.3137, 1 },
};

// The fill of an accent is not the warm accent: pale cream on dusk, a plum near black on dawn, with accentOn upon it.
inline constexpr ColorPair accentFill { { 0.9529, 0.8706, 0.7529, 1 }, { 0.1647, 0.1412, 0.2196, 1 } };
inline constexpr ColorPair accentOn { { 0.1216, 0.1059, 0.1882, 1 }, { 0.9843, 0.9725, 0.949, 1 } };
inline constexpr ColorPair accentText { TokenBase::warmDusk, TokenBase::warmDawn };

inline constexpr ColorPair ringTrack { TokenBase::cream.withAlpha(0.12), TokenBase::ink.withAlpha(0.12) };
inline constexpr ColorPair ringProgress { TokenBase::warmDusk, TokenBase::warmDawn };
inline constexpr ColorPair toggleOn { { 0.9137, 0.6431, 0.4235, 1 }, { 0.7098, 0.4039, 0.1765, 1 } };

inline constexpr ColorPair noticeFill { { 0.1608, 0.149, 0.2902, 1 }, { 0.9059, 0.8902, 0.9725, 1 } };
inline constexpr ColorPair noticeLine { { 0.2471, 0.2275, 0.4392, 1 }, { 0.8078, 0.7765, 0.9412, 1 } };
inline constexpr ColorPair noticeText { { 0.8275, 0.8, 0.9686, 1 }, { 0.2314, 0.2039, 0.4549, 1 } };
inline constexpr ColorPair noticeIcon { { 0.702, 0.6588, 0.9412, 1 }, { 0.3529, 0.3098, 0.6902, 1 } };

// Warm in both appearances and never inverted: dawn is a little deeper and more saturated.
inline constexpr ColorPair orbCore { { 1, 0.9686, 0.9176, 1 }, { 1, 0.9529, 0.8784, 1 } };
inline constexpr ColorPair orbBody { { 0.9961, 0.8941, 0.749, 1 }, { 0.9765, 0.8118, 0.6078, 1 } };
inline constexpr ColorPair orbGlow { TokenBase::warmDusk, { 0.9412, 0.6824, 0.4471, 1 } };
inline constexpr ColorPair orbRim { { 0.949, 0.6902, 0.4784, 1 }, { 0.9098, 0.6039, 0.3686, 1 } };
inline constexpr ColorPair orbPool { { 0.9804, 0.7765, 0.549, 0.2 }, orbGlow.dawn.withAlpha(0.22) };

// The eight tones with which a person marks Blocks and Lists.
inline constexpr ColorPair blockLavender { { 0.7216, 0.6667, 0.902, 1 }, { 0.4314, 0.3725, 0.6902, 1 } };
inline constexpr ColorPair blockPeriwinkle { { 0.6235, 0.698, 0.9412, 1 }, { 0.3059, 0.4, 0.7216, 1 } };
inline constexpr ColorPair blockSky { { 0.549, 0.7725, 0.902, 1 }, { 0.1843, 0.4824, 0.651, 1 } };
inline constexpr ColorPair blockTeal { { 0.5255, 0.7961, 0.7608, 1 }, { 0.1804, 0.498, 0.4667, 1 } };
inline constexpr ColorPair blockSage { { 0.6627, 0.8039, 0.6392, 1 }, { 0.298, 0.4824, 0.2784, 1 } };
inline constexpr ColorPair blockSand { { 0.8902, 0.8118, 0.6275, 1 }, { 0.5255, 0.4039, 0.1647, 1 } };
inline constexpr ColorPair blockRose { { 0.9098, 0.6941, 0.7843, 1 }, { 0.6431, 0.3059, 0.4706, 1 } };
inline constexpr ColorPair blockMauve { { 0.8039, 0.6549, 0.8549, 1 }, { 0.5294, 0.3255, 0.6157, 1 } };

// Unequal on purpose: the same alpha reads stronger on dawn.
inline constexpr ColorPair hoverFill { TokenBase::cream.withAlpha(0.06), TokenBase::ink.withAlpha(0.05) };
inline constexpr ColorPair pressedFill { TokenBase::cream.withAlpha(0.1), TokenBase::ink.withAlpha(0.09) };
inline constexpr ColorPair selectionFill { TokenBase::warmDusk.withAlpha(0.12), TokenBase::warmDawn.withAlpha(0.12) };
inline constexpr ColorPair focusRing { TokenBase::warmDusk, TokenBase::warmDawn };

// The background itself, seen through.
inline constexpr ColorPair veil {
    .dusk = bg.dusk.withAlpha(0.88),
    .dawn = bg.dawn.withAlpha(0.92),
    .duskHighContrast = bg.dusk.withAlpha(0.96),
    .dawnHighContrast = bg.dawn.withAlpha(0.96),
    .duskSolid = bg.dusk,
    .dawnSolid = bg.dawn,
};
inline constexpr ColorPair popoverFill {
    .dusk = { 0.1176, 0.1059, 0.1961, 0.9 },
    .dawn = { 0.9843, 0.9725, 0.949, 0.88 },
    .duskSolid = RGBA { 0.1176, 0.1059, 0.1961, 1 },
    .dawnSolid = RGBA { 0.9843, 0.9725, 0.949, 1 },
};

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
    ORVEL_TOKEN(blockLavender),
    ORVEL_TOKEN(blockPeriwinkle),
    ORVEL_TOKEN(blockSky),
    ORVEL_TOKEN(blockTeal),
    ORVEL_TOKEN(blockSage),
    ORVEL_TOKEN(blockSand),
    ORVEL_TOKEN(blockRose),
    ORVEL_TOKEN(blockMauve),
    ORVEL_TOKEN(hoverFill),
    ORVEL_TOKEN(pressedFill),
    ORVEL_TOKEN(selectionFill),
    ORVEL_TOKEN(focusRing),
    ORVEL_TOKEN(veil),
    ORVEL_TOKEN(popoverFill),
};
}

}
