#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>
#include <string>

/// Writes the grain laid over backgrounds as a grey PGM picture: 128 is nothing, brighter is light, darker is shade.
///
/// Evenly spread noise without its large patches (what is left of white noise when its neighbourhood's mean is taken
/// away), which repeats without a seam because the neighbourhood wraps round. The same on every machine.
namespace {

constexpr std::size_t side = 128;
constexpr double spread = 32; // standard deviation, in grey levels

using Tile = std::array<std::array<double, side>, side>;

Tile whiteNoise()
{
    std::mt19937 random(20); // the generator's numbers are fixed by the standard, a distribution's are not
    Tile tile {};
    for (auto& row : tile) {
        for (auto& value : row)
            value = static_cast<double>(random()) / static_cast<double>(std::mt19937::max()) - 0.5;
    }
    return tile;
}

double meanAround(const Tile& tile, std::size_t x, std::size_t y)
{
    constexpr std::size_t reach = 2;
    double sum = 0;
    for (std::size_t dy = 0; dy <= 2 * reach; ++dy) {
        for (std::size_t dx = 0; dx <= 2 * reach; ++dx)
            sum += tile[(y + side + dy - reach) % side][(x + side + dx - reach) % side];
    }
    return sum / ((2 * reach + 1) * (2 * reach + 1));
}

Tile withoutPatches(const Tile& noise)
{
    Tile tile {};
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x)
            tile[y][x] = noise[y][x] - meanAround(noise, x, y);
    }
    return tile;
}

std::string grey(const Tile& tile)
{
    double squares = 0;
    for (const auto& row : tile) {
        for (const double value : row)
            squares += value * value;
    }
    const double scale = spread / std::sqrt(squares / (side * side));
    std::string bytes;
    for (const auto& row : tile) {
        for (const double value : row)
            bytes +=
                static_cast<char>(static_cast<std::uint8_t>(std::clamp(128 + std::round(value * scale), 0.0, 255.0)));
    }
    return bytes;
}

}

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "usage: grain FILE.pgm\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    file << "P5\n" << side << ' ' << side << "\n255\n" << grey(withoutPatches(whiteNoise()));
    file.close();
    return file ? EXIT_SUCCESS : EXIT_FAILURE;
}
