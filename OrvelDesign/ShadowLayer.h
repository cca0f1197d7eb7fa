#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>

#include "OrvelDesign/RGBA.h"

namespace orvel {

/// One layer of a box shadow; lengths in points.
struct ShadowLayer {
    bool inset; // inside the shape's edge (an inner line or glow), else outside and below the shape
    double x;
    double y; // positive is downward
    double blur;
    double spread; // how far the shadow's shape grows beyond (or, inset, into) the shape before it is blurred
    RGBA color;

    bool operator==(const ShadowLayer&) const = default;
};

/// A short list of layers in drawing order. It holds its layers itself, so that tokens are compile-time values.
class ShadowLayers {
public:
    static constexpr std::size_t capacity = 4;

    template <std::same_as<ShadowLayer>... Layers>
    requires(sizeof...(Layers) <= capacity) constexpr ShadowLayers(Layers... layers)
        : m_layers { layers... }, m_size(sizeof...(Layers))
    {
    }

    constexpr const ShadowLayer* begin() const { return m_layers.data(); }
    constexpr const ShadowLayer* end() const { return m_layers.data() + m_size; }
    constexpr std::size_t size() const { return m_size; }
    constexpr bool empty() const { return m_size == 0; }

    constexpr bool operator==(const ShadowLayers& other) const { return std::ranges::equal(*this, other); }

private:
    std::array<ShadowLayer, capacity> m_layers;
    std::size_t m_size;
};

/// A shadow in both appearances. The two lists may differ in length.
struct ShadowPair {
    ShadowLayers dusk;
    ShadowLayers dawn;

    bool operator==(const ShadowPair&) const = default;
};

}
