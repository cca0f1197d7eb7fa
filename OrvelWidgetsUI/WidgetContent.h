#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// What one widget entry shows, ready to be drawn.
struct WidgetContent {
    /// Which of the six presentations applies.
    enum class State : std::uint8_t { now, next, focus, paused, none, breathe };
};

template <>
inline constexpr std::array<std::string_view, 6> rawValues<WidgetContent::State> { "now", "next", "focus", "paused",
    "none", "breathe" };

}
