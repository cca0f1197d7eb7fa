#include "OrvelPlatform/Drawing/TextureTile.h"

#include <algorithm>
#include <cairo.h>
#include <charconv>
#include <cmath>
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

std::uint32_t byte(double share)
{
    return static_cast<std::uint32_t>(std::lround(share * 255));
}

/// The ground with a grey's light or shade, premultiplied. A channel's way to its nearer end is the most that it goes,
/// up as well as down.
std::uint32_t pixel(std::uint8_t grey, const Color& ground, double opacity)
{
    constexpr double clear = 128, most = 128;
    const double strength = (grey - clear) / most * opacity;
    const auto channel = [&](double value) {
        return byte((value + std::min(value, 1 - value) * strength) * ground.alpha);
    };
    return byte(ground.alpha) << 24U | channel(ground.red) << 16U | channel(ground.green) << 8U | channel(ground.blue);
}

}

std::expected<TextureTile, Fault> TextureTile::fromPgm(std::string_view pgm)
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

    return TextureTile { *width, *height, { pgm.begin(), pgm.end() } };
}

SurfaceHandle TextureTile::on(const Color& ground, double opacity) const
{
    SurfaceHandle surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height)));
    auto* const bytes = cairo_image_surface_get_data(surface.get());
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    for (std::size_t y = 0; y < height; ++y) {
        auto* const row = reinterpret_cast<std::uint32_t*>(bytes + y * stride);
        for (std::size_t x = 0; x < width; ++x)
            row[x] = pixel(greys[y * width + x], ground, opacity);
    }
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

}
