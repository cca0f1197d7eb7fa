#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "OrvelShared/WidgetSnapshot.h"

namespace orvelctl {

/// The name of what a state is about; absent for the empty states.
std::optional<std::string> phaseName(const orvel::WidgetSnapshot::State& state);

/// "Block", "Focus", "Next" and so on.
std::string_view phaseKind(const orvel::WidgetSnapshot::State& state);

}
