#pragma once

#include <string>

#include "OrvelPlatform/Views/Icon.h"

namespace orvel {

/// A symbol that stands beside text of a size: the drawing itself, without the margin that symbols keep in their
/// squares, is as high and wide as the size. It takes a place of that size and overhangs by the margin.
View symbol(std::string name, std::string fallback, double size, int weight, Paint paint);

}
