#pragma once

#include <optional>
#include <string>
#include <vector>

#include "WidgetHost/Controls/ShownControl.h"
#include "WidgetHost/Desk/Surroundings.h"
#include "WidgetHost/Panel/PanelContent.h"
#include "WidgetHost/Tray/TrayContent.h"

namespace orvel {

/// The extension's controls as they are to be shown.
struct ShownControls {
    const std::vector<ShownControl>& controls;
    bool isReachable; // else the extension does not answer
};

/// What the panel shows. `trouble` says what the last use came to, where that is nothing.
PanelContent panelContent(
    const ShownControls& shown, const Surroundings& around, const std::optional<std::string>& trouble);

/// What the tray shows. Lines of its menu that are no controls have these names.
TrayContent trayContent(const ShownControls& shown, const Surroundings& around);
namespace TrayLine {
inline constexpr const char* gallery = "gallery";
inline constexpr const char* quit = "quit";
}

/// The control that a line of the tray's menu uses; absent for other lines.
std::optional<std::string> controlOfLine(const std::string& id);

}
