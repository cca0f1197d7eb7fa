#pragma once

#include <cstdint>

#include "OrvelPlatform/Base/ResourceBundle.h"
#include "OrvelPlatform/Drawing/Renderer.h"
#include "OrvelPlatform/Views/Primitives.h"

/// Pictures for the tests of drawing.
namespace orvel {

inline const char thisProgram = 0;

inline Renderer& renderer()
{
    static Renderer shared(resourceBundle("OrvelDesign_OrvelDesign", &thisProgram), FontScope::ownProcess);
    return shared;
}

/// One layer's pixels by place.
struct Pixels {
    std::vector<std::uint32_t> words;
    std::uint32_t width;

    std::uint32_t at(std::size_t x, std::size_t y) const { return words.at(y * width + x); }
    int alpha(std::size_t x, std::size_t y) const { return static_cast<int>(at(x, y) >> 24U); }
    int red(std::size_t x, std::size_t y) const { return static_cast<int>(at(x, y) >> 16U & 0xffU); }
};

inline Pixels drawn(const View& view, Size size, double scale = 1)
{
    auto picture = renderer().draw(view, { .size = size, .scale = scale }, {});
    return { std::move(picture.value().layers.at(0).pixels), picture->width };
}

}
