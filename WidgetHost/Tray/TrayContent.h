#pragma once

#include <optional>
#include <string>
#include <vector>

#include "OrvelDesign/MenuBarOrb.h"
#include "OrvelDesign/RGBA.h"

namespace orvel {

/// A line of the tray's menu.
struct TrayEntry {
    std::string id {}; // the host's own, told when it is chosen; empty: a separator
    std::string label {};
    std::optional<bool> isChecked {}; // absent: nothing that is on or off
    bool isEnabled = true;

    bool operator==(const TrayEntry&) const = default;
};

/// All that the tray shows. Texts are UTF-8.
struct TrayContent {
    MenuBarOrbState glyph = MenuBarOrb::Idle {};
    RGBA foreground { 1, 1, 1, 1 }; // what the glyph is tinted with
    std::string title {}; // the item's name, which does not change with what it shows
    std::string toolTipTitle {};
    std::string toolTipText {};
    std::vector<TrayEntry> menu {}; // no two with the same id
    bool isRightToLeft = false; // of the menu

    bool operator==(const TrayContent&) const = default;
};

}
