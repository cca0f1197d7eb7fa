#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// The card of a family of widgets in points, without larger text: what a window has before its picture came. A family
/// that nobody knows has the small one.
Size cardSize(std::string_view family);

/// The family of a size as a person types it, such as "small"; a family's own name too.
std::optional<std::string> familyOfSize(std::string_view size);

/// The size as a person types it; an unknown family is called by its name.
std::string sizeOfFamily(std::string_view family);

}
