#include "OrvelPlatform/Drawing/TextureTile.h"

#include <cairo.h>
#include <charconv>
#include <cstdint>
#include <optional>

namespace orvel {

namespace {

constexpr std::size_t longestSide = 1024;

/// A whole number from a header whose parts end in one space or line break.
std::optional<std::size_t> number(std::string_view& text)
{
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end == text.data() + text.size())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    return value;
}

/// Premultiplied: white has its alpha in every channel, black in none.
std::uint32_t pixel(std::uint8_t grey)
{
    constexpr int clear = 128;
    constexpr std::uint32_t everyChannel = 0x0101'0101, alphaOnly = 0x0100'0000;
    const int away = grey - clear;
    return away >= 0 ? static_cast<std::uint32_t>(away) * everyChannel : static_cast<std::uint32_t>(-away) * alphaOnly;
}

}

std::expected<SurfaceHandle, Fault> textureTile(std::string_view pgm)
{
    const Fault unreadable { {}, "not a grey picture of a sound size" };
    constexpr std::string_view mark = "P5\n";
    if (!pgm.starts_with(mark))
        return std::unexpected(unreadable);
    pgm.remove_prefix(mark.size());
    const auto width = number(pgm);
    const auto height = width ? number(pgm) : std::nullopt;
    const auto brightest = height ? number(pgm) : std::nullopt;
    if (brightest != 255 || *width == 0 || *width > longestSide || *height == 0 || *height > longestSide
        || pgm.size() != *width * *height)
        return std::unexpected(unreadable);

    SurfaceHandle surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(*width), static_cast<int>(*height)));
    auto* const bytes = cairo_image_surface_get_data(surface.get());
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    for (std::size_t y = 0; y < *height; ++y) {
        auto* const row = reinterpret_cast<std::uint32_t*>(bytes + y * stride);
        for (std::size_t x = 0; x < *width; ++x)
            row[x] = pixel(static_cast<std::uint8_t>(pgm[y * *width + x]));
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

}
