#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Views/Marks.h"

namespace orvel {

/// A drawn picture: its pixels, what it says and what it does.
struct Picture {
    /// Premultiplied ARGB, one word a pixel, rows without gaps. A tinted picture has a layer "default" and a layer
    /// "accent", any other one layer "whole".
    struct Layer {
        std::string name;
        std::vector<std::uint32_t> pixels;
    };

    /// The longest side in pixels, and the most bytes in all layers.
    static constexpr std::uint32_t longestSide = 4096;
    static constexpr std::size_t mostBytes = 32U << 20U;

    std::uint32_t width;
    std::uint32_t height;
    std::vector<Layer> layers;
    std::vector<ElementMark> elements; // in points
    std::vector<ActionMark> actions;

    std::uint32_t stride() const { return width * 4; } // bytes

    /// A layer, which need not be kept for it, as a PNG file.
    std::expected<std::string, Fault> png(Layer layer) const;
};

}
