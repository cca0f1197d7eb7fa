#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelDesign/OrvelColor.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelShared/WidgetMoment.h"

namespace orvel {

/// What a system control shows: the Breathe button or the Focus toggle.
struct ControlContent {
    enum class Kind : std::uint8_t { breathe, focus };

    static constexpr std::string_view breatheSymbol = "circle.circle";
    static constexpr std::string_view focusSymbol = "timer";

    /// The controls' accent.
    static DynamicColor tint();

    Kind kind;
    std::string title;
    std::string value;
    std::string symbol; // the name of a symbol
    bool isOn; // of the toggle; a button is never on
    std::optional<std::string> barText; // beside the symbol in the menu bar; absent when nothing counts down
    std::optional<std::string> spokenState; // absent for a button

    static ControlContent breathe(const WidgetSnapshot::Breath& breath);

    /// On while a Focus runs whose end is still ahead and blocking is not paused.
    static ControlContent focus(const WidgetMoment& moment);

    bool operator==(const ControlContent&) const = default;
};

template <>
inline constexpr std::array<std::string_view, 2> rawValues<ControlContent::Kind> { "breathe", "focus" };

}
