#pragma once

#include <optional>
#include <string_view>

#include "OrvelShared/WidgetSnapshot.h"

namespace orvelbench {

/// A peer to compare with: the same record read with nlohmann-json. Texts of dates, UUIDs and levels are understood by
/// the project's own functions, so that what differs is the JSON alone.
std::optional<orvel::WidgetSnapshot> decodeWithNlohmann(std::string_view bytes);

}
