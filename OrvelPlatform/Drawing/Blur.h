#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace orvel {

/// One byte a pixel, rows `stride` bytes apart.
struct CoverageGrid {
    std::span<std::uint8_t> bytes;
    std::size_t width;
    std::size_t height;
    std::size_t stride;
};

/// Blurs in place by a standard deviation in pixels: three means in a row, which is a Gaussian to the eye. What lies
/// outside counts as the nearest pixel inside.
void blur(const CoverageGrid& grid, double deviation);

}
