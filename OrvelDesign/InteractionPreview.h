#pragma once

#include <array>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// A state that a preview or the gallery forces on every control below it, so that all states can be shown side by side
/// without a pointer.
enum class InteractionPreview { none, hover, pressed, focused };

template <>
inline constexpr std::array<std::string_view, 4> rawValues<InteractionPreview> { "none", "hover", "pressed",
    "focused" };

}
