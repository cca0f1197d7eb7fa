#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/Paint.h"

namespace orvel {

/// A texture's tile as it is kept: a grey picture whose 128 changes nothing; brighter is light and darker is shade, the
/// more the further from it.
struct TextureTile {
    std::size_t width;
    std::size_t height;
    std::vector<std::uint8_t> greys; // row by row

    /// Reads a binary PGM picture.
    static std::expected<TextureTile, Fault> fromPgm(std::string_view pgm);

    /// The tile's pixels on a ground.
    SurfaceHandle on(const Color& ground, double opacity) const;
};

}
