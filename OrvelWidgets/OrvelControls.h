#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "OrvelDesign/OrvelColor.h"
#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgets/FocusNowControlIntent.h"
#include "OrvelWidgets/OpenBreatheIntent.h"
#include "OrvelWidgetsUI/ControlContent.h"

/// The two system controls: what a desktop registers, what they show, and how that is put into its templates.
namespace orvel {

struct ControlConfiguration {
    std::string_view kind;
    std::string displayName;
    std::string description;

    bool operator==(const ControlConfiguration&) const = default;
};

/// A control's two lines of text, the title first, beside its symbol.
struct ControlLabel {
    std::string title;
    std::string value;
    std::string symbol;
    bool operator==(const ControlLabel&) const = default;
};

/// A text and the symbol, where there is no room for more.
struct ControlValueLabel {
    std::string text;
    std::string symbol;
    bool operator==(const ControlValueLabel&) const = default;
};

struct ControlToggle {
    bool isOn;
    DynamicColor tint;
    ControlLabel label;
    ControlValueLabel valueLabel;

    /// What the toggle runs when the user switches it.
    FocusNowControlIntent action(bool newState) const { return { .value = newState }; }

    bool operator==(const ControlToggle&) const = default;
};

struct ControlButton {
    OpenBreatheIntent action;
    ControlLabel label;
    bool operator==(const ControlButton&) const = default;
};

/// Starts and ends a Focus.
struct FocusNowControl {
    static ControlConfiguration configuration();
    static ControlToggle toggle(const ControlContent& content);
};

/// Opens a breath, whichever the application chooses.
struct BreatheNowControl {
    static ControlConfiguration configuration();
    static ControlButton button(const ControlContent& content);
};

/// What the Focus control shows. Without a snapshot that is what the gallery shows: no Blocks, and no Focus.
struct FocusValue {
    static ControlContent previewValue(Date now, const Calendar& calendar);
    static ControlContent currentValue(
        const std::optional<WidgetSnapshot>& snapshot, Date now, const Calendar& calendar);
};

/// What the Breathe control shows. Without a snapshot that is what the gallery shows: a calm breath of a minute.
struct BreatheValue {
    static ControlContent previewValue();
    static ControlContent currentValue(const std::optional<WidgetSnapshot>& snapshot);
};

}
