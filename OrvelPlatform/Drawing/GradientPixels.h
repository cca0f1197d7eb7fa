#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "OrvelPlatform/Views/Paint.h"

/// Gradients as pixels, dithered: between two dark colours there are fewer steps than pixels, and without dithering
/// each step shows as a band.
namespace orvel {

/// Device pixels to fill, and where the painted rectangle lies among them (in pixels; it need not start on a whole
/// one).
struct PixelGrid {
    std::span<std::uint32_t> pixels; // premultiplied ARGB, row by row
    std::size_t width;
    Rect painted;
};

void paintGradient(const PixelGrid& grid, const LinearGradient& gradient);

/// `scale` is the number of pixels in a point.
void paintGradient(const PixelGrid& grid, const RadialGradient& gradient, double scale);

/// The colour at a place on the gradient's line.
Color colorAt(std::span<const GradientStop> stops, double location);

}
