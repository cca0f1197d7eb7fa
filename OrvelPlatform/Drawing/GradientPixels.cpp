#include "OrvelPlatform/Drawing/GradientPixels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace orvel {

namespace {

/// Four premultiplied channels of 16 bits in one word: blue, red, green, alpha from the lowest up. The upper byte of
/// each is the pixel's value, the lower one what dithering decides about. In this order two and two of them are as far
/// from each other as in a pixel.
using Lanes = std::uint64_t;

constexpr std::size_t tableSize = 2048;

Lanes lane(double component, unsigned index)
{
    constexpr double full = 255 * 256;
    constexpr unsigned bits = 16;
    return static_cast<Lanes>(std::lround(std::clamp(component, 0.0, 1.0) * full)) << (bits * index);
}

std::vector<Lanes> tableOf(std::span<const GradientStop> stops)
{
    std::vector<Lanes> table;
    table.reserve(tableSize + 1);
    for (std::size_t i = 0; i <= tableSize; ++i) {
        const auto color = colorAt(stops, static_cast<double>(i) / tableSize);
        const double alpha = std::clamp(color.alpha, 0.0, 1.0);
        table.push_back(
            lane(color.blue * alpha, 0) | lane(color.red * alpha, 1) | lane(color.green * alpha, 2) | lane(alpha, 3));
    }
    return table;
}

/// Evenly spread thresholds: any two neighbours differ much, and the pattern is too fine to be seen.
constexpr std::size_t tileSide = 8;
using Thresholds = std::array<std::array<Lanes, tileSide>, tileSide>;

constexpr Thresholds thresholds()
{
    Thresholds tile {};
    for (std::size_t y = 0; y < tileSide; ++y) {
        for (std::size_t x = 0; x < tileSide; ++x) {
            std::uint64_t value = 0;
            for (unsigned bit = 0; bit < 3; ++bit) { // the ordered (Bayer) matrix: bits of x ^ y and of y, reversed
                value = value << 1U | ((x ^ y) >> bit & 1U);
                value = value << 1U | (y >> bit & 1U);
            }
            constexpr std::uint64_t everyLane = 0x0001'0001'0001'0001;
            tile[y][x] = (value * 4 + 2) * everyLane; // 64 thresholds within 0…255
        }
    }
    return tile;
}

std::uint32_t pixel(Lanes color, Lanes threshold)
{
    const Lanes sum = color + threshold; // at most 255 × 256 + 254: no lane overflows
    constexpr unsigned byte = 8, half = 32;
    return static_cast<std::uint32_t>((sum >> byte & 0x00ff'00ffU) | (sum >> half & 0xff00'ff00U));
}

/// Fills the grid row by row: `rowAt(fromTop)` gives what tells a pixel's place in the table of colours. Distances are
/// in pixels from the painted rectangle's corner. There the dithering begins too, so that a pixel is the same however
/// much is painted round the rectangle.
template <typename RowAt>
void paint(const PixelGrid& grid, std::span<const GradientStop> stops, RowAt rowAt)
{
    static constexpr auto tile = thresholds();
    const auto table = tableOf(stops);
    const auto phase = [](double corner) { return static_cast<std::size_t>(-std::lround(corner)) % tileSide; };
    const auto left = phase(grid.painted.x), top = phase(grid.painted.y);
    const std::size_t height = grid.pixels.size() / grid.width;
    for (std::size_t y = 0; y < height; ++y) {
        const auto row = grid.pixels.subspan(y * grid.width, grid.width);
        const auto& thresholds = tile[(y + top) % tileSide];
        const auto indexAt = rowAt(static_cast<double>(y) + 0.5 - grid.painted.y);
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = pixel(table[indexAt(x)], thresholds[(x + left) % tileSide]);
    }
}

/// The place in the table for a place on the gradient's line.
std::size_t tableIndex(double location)
{
    return static_cast<std::size_t>(std::clamp(location, 0.0, 1.0) * tableSize + 0.5);
}

void paintLast(const PixelGrid& grid, std::span<const GradientStop> stops)
{
    paint(grid, stops, [](double) { return [](std::size_t) { return tableSize; }; });
}

/// A linear gradient moves on by the same step from pixel to pixel, so that whole numbers do: places in the table with
/// a fraction of 32 bits. What is far off either end stays there.
class LinearRow {
public:
    LinearRow(double first, double step) : m_first(fixed(first * tableSize + 0.5)), m_step(fixed(step * tableSize)) { }

    std::size_t operator()(std::size_t x) const
    {
        const auto index = (m_first + m_step * static_cast<std::int64_t>(x)) >> fraction;
        return static_cast<std::size_t>(std::clamp<std::int64_t>(index, 0, tableSize));
    }

private:
    static constexpr unsigned fraction = 32;

    static std::int64_t fixed(double places)
    {
        constexpr double most = 1 << 17; // times the longest row it still fits
        return std::llround(std::clamp(places, -most, most) * static_cast<double>(std::int64_t { 1 } << fraction));
    }

    std::int64_t m_first;
    std::int64_t m_step;
};

}

Color colorAt(std::span<const GradientStop> stops, double location)
{
    if (stops.empty())
        return { 0, 0, 0, 0 };
    const auto next = std::ranges::find_if(stops, [&](const GradientStop& stop) { return stop.location >= location; });
    if (next == stops.begin())
        return stops.front().color;
    if (next == stops.end())
        return stops.back().color;
    const auto& from = *std::prev(next);
    const double share = (location - from.location) / (next->location - from.location);
    const auto mixed = [&](double a, double b) { return a + (b - a) * share; };
    return { mixed(from.color.red, next->color.red), mixed(from.color.green, next->color.green),
        mixed(from.color.blue, next->color.blue), mixed(from.color.alpha, next->color.alpha) };
}

void paintGradient(const PixelGrid& grid, const LinearGradient& gradient)
{
    const double startX = gradient.start.x * grid.painted.width, startY = gradient.start.y * grid.painted.height;
    const double dx = gradient.end.x * grid.painted.width - startX;
    const double dy = gradient.end.y * grid.painted.height - startY;
    const double squared = dx * dx + dy * dy;
    if (squared == 0)
        return paintLast(grid, gradient.stops);
    const double firstX = 0.5 - grid.painted.x;
    paint(grid, gradient.stops, [&](double fromTop) {
        return LinearRow(((firstX - startX) * dx + (fromTop - startY) * dy) / squared, dx / squared);
    });
}

void paintGradient(const PixelGrid& grid, const RadialGradient& gradient, double scale)
{
    const double centerX = gradient.center.x * grid.painted.width, centerY = gradient.center.y * grid.painted.height;
    const double radius = gradient.radius * scale;
    if (radius <= 0)
        return paintLast(grid, gradient.stops);
    paint(grid, gradient.stops, [&](double fromTop) {
        return [=, dy = fromTop - centerY](std::size_t x) {
            const double dx = static_cast<double>(x) + 0.5 - grid.painted.x - centerX;
            return tableIndex(std::sqrt(dx * dx + dy * dy) / radius);
        };
    });
}

}
