#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/HostPicture.h"
#include "OrvelPlatform/Views/Geometry.h"
#include "OrvelPlatform/Views/Paint.h"
#include "WidgetHost/State/HostState.h"

namespace orvel {

/// The colours that a tinted picture's two layers take.
struct WindowTint {
    Color foreground;
    Color accent;
    bool operator==(const WindowTint&) const = default;
};

/// All that a widget's window shows.
struct WidgetFace {
    std::string name; // as it is displayed; the accessible name of the window
    Size size; // of the card in points, larger text included
    double pointScale = 1; // the window's points in a point of the picture
    std::shared_ptr<const HostPicture> picture {}; // null: none came yet, and the card shows the name
    std::optional<std::string> notice {}; // that the picture is not up to date; said quietly
    std::optional<WindowTint> tint {}; // in the looks mono and clear
    bool isDark = false;
    bool increasesContrast = false;
    bool reducesTransparency = false;
    std::string language {}; // of the words
    std::string family {};
    std::vector<std::string> families {}; // that may be chosen
    ChosenLook look = ChosenLook::automatic;
    bool isRightToLeft = false; // the words' direction

    bool operator==(const WidgetFace&) const = default;
};

}
