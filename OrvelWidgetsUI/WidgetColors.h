#pragma once

#include <optional>
#include <variant>

#include "OrvelDesign/IdentityTone.h"
#include "OrvelPlatform/Base/Environment.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The desktop's levels of emphasis in one colour, from the strongest down. A host tints what is drawn, so a level is
/// white with an alpha.
enum class EmphasisLevel { primary, secondary, tertiary, quaternary };

/// A colour of the palette at an opacity.
struct PaletteInk {
    OrvelColor color;
    double opacity = 1;
    bool operator==(const PaletteInk&) const = default;
};

/// A level of emphasis at an opacity.
struct EmphasisInk {
    EmphasisLevel level;
    double opacity = 1;
    bool operator==(const EmphasisInk&) const = default;
};

/// Nothing is painted: the piece is cut out of what it lies on.
struct CutOut {
    bool operator==(const CutOut&) const = default;
};

using WidgetInk = std::variant<PaletteInk, EmphasisInk, CutOut>;

/// The colour that an ink has in a look; absent for what is cut out.
std::optional<RGBA> resolve(const WidgetInk& ink, WidgetLook look, const Environment& outside);

/// What the layouts paint with, by role. The full-colour looks take the palette's colours; the tinted ones take the
/// strongest level for what is in front and weaker ones for tracks, separators and second lines.
struct WidgetColors {
    WidgetLook look;

    WidgetInk kicker() const; // upper-case text above a title
    WidgetInk title() const;
    WidgetInk detail() const; // details and labels
    WidgetInk headerSymbol(IdentityTone tone) const;
    WidgetInk headerDisc(IdentityTone tone) const;
    WidgetInk ringProgress() const; // of the ring and the bar alike
    WidgetInk ringTrack() const;
    WidgetInk accentFill() const; // the breathe button's capsule
    WidgetInk accentOn() const; // its icon and words
    WidgetInk orbPool() const;
    WidgetInk line() const; // separators and the bars of past days
    WidgetInk todayBar() const;
};

}
