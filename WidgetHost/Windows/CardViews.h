#pragma once

#include <optional>
#include <string>

#include "OrvelDesign/ShadowLayer.h"
#include "OrvelPlatform/Views/View.h"
#include "WidgetHost/Face/WidgetFace.h"

/// What a window draws itself, round and instead of an extension's picture.
namespace orvel {

/// The environment that a face's own views are drawn in.
Environment environmentOf(const WidgetFace& face);

/// What lies under the picture, and round it.
struct CardGround {
    std::optional<Color> fill; // absent: the picture paints its own ground, or the wallpaper is to be seen
    bool hasEdge; // with its shadow
    bool operator==(const CardGround&) const = default;
};

/// Full colour pictures bring their ground with them. In the look mono a card lies behind; in the look clear nothing
/// does, unless the user wants nothing to shine through or the desktop cannot show it.
CardGround cardGround(const WidgetFace& face, bool isComposited);

/// How a widget is lifted from the desktop. A sheet's shade, from a lower height: a widget lies on what it covers.
ShadowLayers widgetShadow(bool isDark);

/// The shadow and the edge of a card, nothing within it; and round it the ring while it has the keyboard.
struct CardFrame {
    double radius; // points
    bool hasEdge;
    bool isFocused;

    View body(const Environment& environment) const;
};

/// In place of a picture: the widget's name in the middle.
struct CardPlaceholder {
    std::string name;
    std::optional<WindowTint> tint;

    View body(const Environment& environment) const;
};

/// A sentence on a small plate of its own, which lies over a card's lower edge: widgets leave no room within.
struct CardNotice {
    static constexpr double height = 20; // points

    std::string sentence;
    std::optional<WindowTint> tint;

    View body(const Environment& environment) const;
};

/// Round a button while it has the keyboard.
struct ActionRing {
    View body(const Environment& environment) const;
};

}
