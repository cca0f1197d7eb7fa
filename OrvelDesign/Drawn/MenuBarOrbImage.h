#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "OrvelDesign/MenuBarOrb.h"

namespace orvel {

/// A square of coverage, row by row from the top left: 0 is clear, 255 covered. What it shows is black; whoever draws
/// it as a template gives it another colour.
struct TemplateBitmap {
    int side; // pixels
    std::vector<std::uint8_t> alpha;

    std::uint8_t at(int x, int y) const
    {
        return alpha[static_cast<std::size_t>(y) * static_cast<std::size_t>(side) + static_cast<std::size_t>(x)];
    }

    bool operator==(const TemplateBitmap&) const = default;
};

/// One picture at two densities, each drawn for its own pixels. It is a template: the bar that shows it tints it.
struct TemplateImage {
    double side; // points
    std::array<TemplateBitmap, 2> bitmaps; // for scales 1 and 2

    /// The bitmap that looks best at a scale: the first with enough pixels, else the largest.
    const TemplateBitmap& best(double scale) const;
};

namespace MenuBarOrbGlyph {
inline constexpr int largestScale = 64;

TemplateImage image(const MenuBarOrbState& state);

/// The picture at one scale; absent for a scale outside 1 to `largestScale`.
std::optional<TemplateBitmap> bitmap(const MenuBarOrbState& state, int scale);
}

}
