#pragma once

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Drawing/Handles.h"

namespace orvel {

/// A texture's tile as a surface, from a grey PGM picture: 128 is clear, brighter is white and darker black, the more
/// the further from it.
std::expected<SurfaceHandle, Fault> textureTile(std::string_view pgm);

}
