#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvel {

/// A symbol of the design system as an SVG file of 24 points a side, in the current colour, for hosts that have no such
/// symbol themselves. Absent for a name that the design system does not know, and where its symbols cannot be read.
std::optional<std::string> symbolIcon(std::string_view name);

}
