#include "OrvelDesign/Drawn/MenuBarOrbImage.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

using namespace MenuBarOrbGlyph;

double between(Place a, Place b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

// How far a place lies outside a mark, in pixels; negative inside it.

double outside(const Dot& dot, Place place)
{
    return between(place, dot.centre) - dot.diameter / 2;
}

double outside(const Hole& hole, Place place)
{
    return between(place, hole.centre) - hole.diameter / 2;
}

double outside(const MenuBarOrbGlyph::Ring& ring, Place place)
{
    const double fromCentre = between(place, ring.centre);
    const double radius = ring.diameter / 2;
    return std::max(fromCentre - radius, radius - ring.width - fromCentre);
}

Place endOf(const MenuBarOrbGlyph::Arc& arc, double angle)
{
    return { arc.centre.x + arc.radius * std::cos(angle), arc.centre.y + arc.radius * std::sin(angle) };
}

double outside(const MenuBarOrbGlyph::Arc& arc, Place place)
{
    constexpr double turn = 2 * std::numbers::pi;
    const double angle = std::atan2(place.y - arc.centre.y, place.x - arc.centre.x) - arc.start;
    const bool isSwept = angle - turn * std::floor(angle / turn) <= arc.sweep;
    const double fromLine = isSwept
        ? std::abs(between(place, arc.centre) - arc.radius)
        : std::min(between(place, endOf(arc, arc.start)), between(place, endOf(arc, arc.start + arc.sweep)));
    return fromLine - arc.width / 2;
}

/// The share of a pixel that a mark covers. Only pixels on an edge are looked at closely, on a grid whose points lie
/// the same way from every side, so that what is symmetric stays so.
template <typename Shape>
double coverage(const Shape& mark, int x, int y)
{
    constexpr double halfDiagonal = 0.71; // of a pixel, rounded up
    const double atCentre = outside(mark, { x + 0.5, y + 0.5 });
    if (std::abs(atCentre) > halfDiagonal)
        return atCentre < 0 ? 1 : 0;
    constexpr int grid = 16;
    int covered = 0;
    for (int row = 0; row < grid; ++row)
        for (int column = 0; column < grid; ++column)
            covered += outside(mark, { x + (column + 0.5) / grid, y + (row + 0.5) / grid }) < 0 ? 1 : 0;
    return covered / double { grid * grid };
}

/// The alpha of a pixel with a mark drawn over it.
double drawnOver(double below, const Mark& mark, int x, int y)
{
    const auto painted = [&](const auto& shape) {
        const double alpha = shape.alpha * coverage(shape, x, y);
        return alpha + below * (1 - alpha);
    };
    return std::visit(Match {
                          [&](const MenuBarOrbGlyph::Ring& ring) { return painted(ring); },
                          [&](const MenuBarOrbGlyph::Arc& arc) { return painted(arc); },
                          [&](const Dot& dot) { return painted(dot); },
                          [&](const Hole& hole) { return below * (1 - coverage(hole, x, y)); },
                      },
        mark);
}

TemplateBitmap drawn(const std::vector<Mark>& marks, int side)
{
    TemplateBitmap bitmap { side, {} };
    bitmap.alpha.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            double alpha = 0;
            for (const auto& mark : marks)
                alpha = drawnOver(alpha, mark, x, y);
            bitmap.alpha.push_back(static_cast<std::uint8_t>(std::lround(alpha * 255)));
        }
    }
    return bitmap;
}

TemplateBitmap drawn(const MenuBarOrbState& state, int scale)
{
    return drawn(marks(state, scale), static_cast<int>(imageSide) * scale);
}

}

const TemplateBitmap& TemplateImage::best(double scale) const
{
    return scale <= 1 ? bitmaps.front() : bitmaps.back();
}

TemplateImage MenuBarOrbGlyph::image(const MenuBarOrbState& state)
{
    return { imageSide, { drawn(state, 1), drawn(state, 2) } };
}

std::optional<TemplateBitmap> MenuBarOrbGlyph::bitmap(const MenuBarOrbState& state, int scale)
{
    if (scale < 1 || scale > largestScale)
        return std::nullopt;
    return drawn(state, scale);
}

}
