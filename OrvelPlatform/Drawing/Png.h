#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// A PNG file of premultiplied ARGB pixels. Made for speed: a picture of a widget takes a few milliseconds and a little
/// more room than the smallest file would. What is packed is made in the pixels' place: with room behind them for a
/// byte a row it takes no memory of its own.
std::expected<std::string, Fault> pngFile(std::vector<std::uint32_t> pixels, std::uint32_t width);

}
