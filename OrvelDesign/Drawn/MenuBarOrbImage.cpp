#include "OrvelDesign/Drawn/MenuBarOrbImage.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

using namespace MenuBarOrbGlyph;

double squared(double length)
{
    return length * length;
}

double squareBetween(Place a, Place b)
{
    return squared(a.x - b.x) + squared(a.y - b.y);
}

// The areas that marks cover. Each pixel of an edge asks some hundred times whether a place lies within, so that what
// is dear is found out before, and distances are compared by their squares.

/// What lies within one circle and not within another one about the same centre; a negative inner radius is none.
class Band {
public:
    Band(Place centre, double inner, double outer)
        : m_centre(centre)
        , m_inner(inner)
        , m_outer(outer)
        , m_innerSquare(inner < 0 ? -1 : squared(inner))
        , m_outerSquare(squared(outer))
    {
    }

    bool holds(Place place) const
    {
        const double square = squareBetween(place, m_centre);
        return square > m_innerSquare && square < m_outerSquare;
    }

    /// How far a place lies outside, in pixels; negative inside.
    double outside(Place place) const
    {
        const double fromCentre = std::sqrt(squareBetween(place, m_centre));
        return std::max(fromCentre - m_outer, m_inner - fromCentre);
    }

private:
    Place m_centre;
    double m_inner;
    double m_outer;
    double m_innerSquare;
    double m_outerSquare;
};

Band disc(Place centre, double diameter)
{
    return { centre, -1, diameter / 2 };
}

/// A part of a band, ended by two discs.
class Stroke {
public:
    explicit Stroke(const MenuBarOrbGlyph::Arc& arc)
        : m_centre(arc.centre)
        , m_start { std::cos(arc.start), std::sin(arc.start) }
        , m_end { std::cos(arc.start + arc.sweep), std::sin(arc.start + arc.sweep) }
        , m_isHalfOrLess(arc.sweep <= std::numbers::pi)
        , m_band(arc.centre, arc.radius - arc.width / 2, arc.radius + arc.width / 2)
        , m_caps { capAt(arc, m_start), capAt(arc, m_end) }
    {
    }

    bool holds(Place place) const
    {
        return isSwept(place) ? m_band.holds(place) : m_caps[0].holds(place) || m_caps[1].holds(place);
    }

    double outside(Place place) const
    {
        return isSwept(place) ? m_band.outside(place) : std::min(m_caps[0].outside(place), m_caps[1].outside(place));
    }

private:
    static Band capAt(const MenuBarOrbGlyph::Arc& arc, Place direction)
    {
        return disc({ arc.centre.x + arc.radius * direction.x, arc.centre.y + arc.radius * direction.y }, arc.width);
    }

    /// Which side of the two ends a place is on says whether its angle lies between theirs.
    bool isSwept(Place place) const
    {
        const double x = place.x - m_centre.x, y = place.y - m_centre.y;
        const bool isAfterStart = m_start.x * y >= m_start.y * x, isBeforeEnd = m_end.x * y <= m_end.y * x;
        return m_isHalfOrLess ? isAfterStart && isBeforeEnd : isAfterStart || isBeforeEnd;
    }

    Place m_centre;
    Place m_start; // directions, of length 1
    Place m_end;
    bool m_isHalfOrLess;
    Band m_band;
    std::array<Band, 2> m_caps;
};

/// The share of a pixel that an area covers. Only pixels on an edge are looked at closely, on a grid whose points lie
/// the same way from every side, so that what is symmetric stays so.
template <typename Area>
double coverage(const Area& area, int x, int y)
{
    constexpr double halfDiagonal = 0.71; // of a pixel, rounded up
    const double atCentre = area.outside({ x + 0.5, y + 0.5 });
    if (std::abs(atCentre) > halfDiagonal)
        return atCentre < 0 ? 1 : 0;
    constexpr int grid = 16;
    int covered = 0;
    for (int row = 0; row < grid; ++row)
        for (int column = 0; column < grid; ++column)
            covered += area.holds({ x + (column + 0.5) / grid, y + (row + 0.5) / grid }) ? 1 : 0;
    return covered / double { grid * grid };
}

/// The alpha of every pixel, row by row, while one mark after another is drawn over it.
class Sheet {
public:
    explicit Sheet(int side)
        : m_side(side), m_alpha(static_cast<std::size_t>(side) * static_cast<std::size_t>(side)) { }

    template <typename Area>
    void paint(const Area& area, double alpha)
    {
        draw(area, [alpha](double below, double share) { return alpha * share + below * (1 - alpha * share); });
    }

    template <typename Area>
    void wipe(const Area& area)
    {
        draw(area, [](double below, double share) { return below * (1 - share); });
    }

    TemplateBitmap bitmap() const
    {
        TemplateBitmap bitmap { m_side, {} };
        bitmap.alpha.reserve(m_alpha.size());
        for (const double alpha : m_alpha)
            bitmap.alpha.push_back(static_cast<std::uint8_t>(std::lround(alpha * 255)));
        return bitmap;
    }

private:
    template <typename Area, typename Mix>
    void draw(const Area& area, Mix mix)
    {
        auto pixel = m_alpha.begin();
        for (int y = 0; y < m_side; ++y)
            for (int x = 0; x < m_side; ++x, ++pixel)
                *pixel = mix(*pixel, coverage(area, x, y));
    }

    int m_side;
    std::vector<double> m_alpha;
};

void draw(Sheet& sheet, const Mark& mark)
{
    std::visit(Match {
                   [&](const MenuBarOrbGlyph::Ring& ring) {
                       const double radius = ring.diameter / 2;
                       sheet.paint(Band(ring.centre, radius - ring.width, radius), ring.alpha);
                   },
                   [&](const MenuBarOrbGlyph::Arc& arc) { sheet.paint(Stroke(arc), arc.alpha); },
                   [&](const Dot& dot) { sheet.paint(disc(dot.centre, dot.diameter), dot.alpha); },
                   [&](const Hole& hole) { sheet.wipe(disc(hole.centre, hole.diameter)); },
               },
        mark);
}

TemplateBitmap drawn(const std::vector<Mark>& marks, int side)
{
    Sheet sheet(side);
    for (const auto& mark : marks)
        draw(sheet, mark);
    return sheet.bitmap();
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
