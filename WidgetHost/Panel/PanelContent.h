#pragma once

#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "WidgetHost/Style/StyleSheet.h"

namespace orvel {

/// What a control shows and whether it can be used.
struct ControlFace {
    std::string kind;
    bool isToggle = false; // else a button
    std::string title;
    std::string value;
    std::optional<std::string> icon {}; // bytes of an SVG or PNG file; its coverage is drawn in the control's colour
    bool isOn = false; // of a toggle
    std::optional<ControlValue::Color> tint {}; // of a toggle that is on; absent: the design system's
    std::optional<std::string> spokenState {}; // for assistive technology, in the place of the value
    bool isWaiting = false; // what was asked for is shown before it is known to have happened
    bool isEnabled = true;
    bool operator==(const ControlFace&) const = default;
};

/// The window's own words.
struct PanelWords {
    std::string title; // of the window, for assistive technology and lists of windows
    std::string addWidgets; // "Add Widgets…"
    std::string quit; // "Quit"
    bool operator==(const PanelWords&) const = default;
};

/// All that the panel shows.
struct PanelContent {
    std::vector<ControlFace> controls;
    std::optional<std::string> notice {}; // what does not work, said quietly
    PanelWords words;
    StyleSettings style {};
    bool isRightToLeft = false;
    bool operator==(const PanelContent&) const = default;
};

}
