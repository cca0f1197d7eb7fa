#pragma once

#include <optional>

#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// A control as it is shown: a toggle or a button of the extension's.
struct ShownControl {
    ExtensionMember member;
    std::optional<ControlValue> value {}; // the last good one; absent: none came yet
    std::optional<bool> askedFor {}; // present: somebody asked for this state of a toggle, which is not settled yet

    /// Whether a toggle is shown on: as was asked for, until it is settled.
    bool isOn() const { return askedFor.value_or(value && value->isOn.value_or(false)); }

    bool operator==(const ShownControl&) const = default;
};

}
