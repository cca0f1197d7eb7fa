#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// A PNG file of premultiplied ARGB pixels. Made for speed: a picture of a widget takes a few milliseconds and a little
/// more room than the smallest file would.
std::expected<std::string, Fault> pngFile(std::span<const std::uint32_t> pixels, std::uint32_t width);

}
