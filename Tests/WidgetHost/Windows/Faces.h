#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "WidgetHost/Face/WidgetFace.h"

namespace orvel::tests {

/// A pixel's value by its place.
using PixelAt = std::function<std::uint32_t(std::uint32_t x, std::uint32_t y)>;

inline HostPicture::Layer layer(
    const std::string& name, std::uint32_t width, std::uint32_t height, const PixelAt& pixelAt)
{
    std::vector<std::uint32_t> pixels;
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x)
            pixels.push_back(pixelAt(x, y));
    }
    const auto file = sealedMemory(std::as_bytes(std::span(pixels)));
    return { name, *MappedPixels::map(*file, pixels.size() * sizeof(std::uint32_t)) };
}

/// A picture in one layer, with a link.
inline HostPicture picture(std::uint32_t width, std::uint32_t height, const PixelAt& pixelAt)
{
    HostPicture picture { width, height, width * 4, {}, "orvel://today", {}, {} };
    picture.layers.push_back(layer("whole", width, height, pixelAt));
    return picture;
}

inline HostPicture picture(std::uint32_t width, std::uint32_t height)
{
    return picture(width, height, [](auto, auto) { return 0xFF336699U; });
}

inline std::shared_ptr<const HostPicture> shared(HostPicture picture)
{
    return std::make_shared<const HostPicture>(std::move(picture));
}

inline WidgetFace face(Size size, std::shared_ptr<const HostPicture> picture = nullptr)
{
    return { .name = "Status", .size = size, .picture = std::move(picture) };
}

}
