#include "OrvelPlatform/Drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace orvel {

namespace {

/// How many pixels before and behind one its mean takes in.
struct Reach {
    std::ptrdiff_t before;
    std::ptrdiff_t behind;
};

/// Three boxes whose means in a row deviate as asked; even ones lean to either side in turn.
std::array<Reach, 3> boxes(double deviation)
{
    const auto side =
        static_cast<std::ptrdiff_t>(std::floor(deviation * 3 * std::sqrt(2 * std::numbers::pi) / 4 + 0.5));
    const auto half = side / 2;
    if (side % 2 != 0)
        return { { { half, half }, { half, half }, { half, half } } };
    return { { { half, half - 1 }, { half - 1, half }, { half, half } } };
}

/// Replaces every value of a line by the mean round it.
void average(std::vector<std::uint8_t>& line, std::vector<std::uint8_t>& result, Reach reach)
{
    const auto count = static_cast<std::ptrdiff_t>(line.size());
    const auto at = [&](std::ptrdiff_t i) -> std::size_t {
        return line[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(i, 0, count - 1))];
    };
    const auto side = static_cast<std::size_t>(reach.before + reach.behind + 1);
    std::size_t sum = 0;
    for (auto i = -reach.before; i <= reach.behind; ++i)
        sum += at(i);
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        result[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>((sum + side / 2) / side);
        sum += at(i + reach.behind + 1);
        sum -= at(i - reach.before);
    }
    line.swap(result);
}

void blurLine(std::span<std::uint8_t> first, std::size_t count, std::size_t step, const std::array<Reach, 3>& reaches)
{
    std::vector<std::uint8_t> line(count), other(count);
    for (std::size_t i = 0; i < count; ++i)
        line[i] = first[i * step];
    for (const auto reach : reaches)
        average(line, other, reach);
    for (std::size_t i = 0; i < count; ++i)
        first[i * step] = line[i];
}

}

void blur(const CoverageGrid& grid, double deviation)
{
    const auto reaches = boxes(deviation);
    if (reaches[2].before < 1 || grid.width == 0 || grid.height == 0)
        return;
    for (std::size_t y = 0; y < grid.height; ++y)
        blurLine(grid.bytes.subspan(y * grid.stride), grid.width, 1, reaches);
    for (std::size_t x = 0; x < grid.width; ++x)
        blurLine(grid.bytes.subspan(x), grid.height, grid.stride, reaches);
}

}
