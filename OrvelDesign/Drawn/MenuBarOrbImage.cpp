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

// The areas that marks cover. What is dear is found out once, and distances are compared by their squares.

/// An edge's pixel is looked at closely on a grid, whose points lie the same way from every side, so that what is
/// symmetric stays so.
constexpr int grid = 16;
constexpr double halfDiagonal = 0.71; // of a pixel, rounded up

double shareOf(int points)
{
    return points / double { grid * grid };
}

/// The share of a pixel that an area covers, by every point of the grid.
template <typename Area>
double shareByGrid(const Area& area, int x, int y)
{
    int covered = 0;
    for (int row = 0; row < grid; ++row)
        for (int column = 0; column < grid; ++column)
            covered += area.holds({ x + (column + 0.5) / grid, y + (row + 0.5) / grid }) ? 1 : 0;
    return shareOf(covered);
}

/// How many of the grid's points have a square of their distance that is still within, in a pixel whose nearest corner
/// is so far from the centre each way. The farther a row is, the fewer of its points are: they are never all looked at.
template <typename IsWithin>
int pointsWithin(Place near, IsWithin isWithin)
{
    int points = 0, inRow = grid;
    for (int row = 0; row < grid; ++row) {
        const double fromRow = squared(near.y + (row + 0.5) / grid);
        while (inRow > 0 && !isWithin(squared(near.x + (inRow - 0.5) / grid) + fromRow))
            --inRow;
        points += inRow;
    }
    return points;
}

/// Whole columns or rows of pixels.
struct Span {
    int first;
    int end;
};

Span spanAround(double centre, double reach)
{
    return { static_cast<int>(std::floor(centre - reach)), static_cast<int>(std::ceil(centre + reach)) };
}

/// What lies within one circle and not within another one about the same centre; a negative inner radius is none.
class Band {
public:
    Band(Place centre, double inner, double outer)
        : m_centre(centre)
        , m_inner(inner)
        , m_outer(outer)
        , m_innerSquare(inner < 0 ? -1 : squared(inner))
        , m_outerSquare(squared(outer))
        , m_hollow(inner < halfDiagonal ? -1 : squared(inner - halfDiagonal))
        , m_fullFrom(inner < 0 ? -1 : squared(inner + halfDiagonal))
        , m_fullTo(outer < halfDiagonal ? -1 : squared(outer - halfDiagonal))
        , m_bare(squared(outer + halfDiagonal))
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

    /// Whether nothing of a pixel is covered, as can be told by its middle.
    bool leaves(int x, int y) const
    {
        const double square = squareBetween({ x + 0.5, y + 0.5 }, m_centre);
        return square > m_bare || square < m_hollow;
    }

    /// The share of a pixel that is covered.
    double share(int x, int y) const
    {
        const double square = squareBetween({ x + 0.5, y + 0.5 }, m_centre);
        if (square > m_bare || square < m_hollow)
            return 0;
        if (square > m_fullFrom && square < m_fullTo)
            return 1;
        const auto near = nearestCorner(x, y);
        if (!near)
            return shareByGrid(*this, x, y);
        const int inside = pointsWithin(*near, [this](double at) { return at < m_outerSquare; });
        const int within = m_inner < 0 ? 0 : pointsWithin(*near, [this](double at) { return at <= m_innerSquare; });
        return shareOf(inside - within);
    }

    /// All that may be covered.
    Span columns() const { return spanAround(m_centre.x, m_outer); }
    Span rows() const { return spanAround(m_centre.y, m_outer); }

private:
    /// How far the nearest corner of a pixel is each way; absent for pixels that the centre's row or column cuts.
    std::optional<Place> nearestCorner(int x, int y) const
    {
        const double left = x - m_centre.x, top = y - m_centre.y;
        const Place near { left < 0 ? -left - 1 : left, top < 0 ? -top - 1 : top };
        return near.x < 0 || near.y < 0 ? std::nullopt : std::optional(near);
    }

    Place m_centre;
    double m_inner;
    double m_outer;
    double m_innerSquare;
    double m_outerSquare;
    // Squares that the middles of pixels have which are covered in the same way all over.
    double m_hollow; // less: nothing
    double m_fullFrom; // between these: everything
    double m_fullTo;
    double m_bare; // more: nothing
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

    double share(int x, int y) const
    {
        if (m_band.leaves(x, y)) // the discs lie within the band
            return 0;
        if (isWhollySwept(x, y))
            return m_band.share(x, y);
        const double atCentre = outside({ x + 0.5, y + 0.5 });
        if (std::abs(atCentre) > halfDiagonal)
            return atCentre < 0 ? 1 : 0;
        return shareByGrid(*this, x, y);
    }

    Span columns() const { return m_band.columns(); }
    Span rows() const { return m_band.rows(); }

private:
    static Band capAt(const MenuBarOrbGlyph::Arc& arc, Place direction)
    {
        return disc({ arc.centre.x + arc.radius * direction.x, arc.centre.y + arc.radius * direction.y }, arc.width);
    }

    double outside(Place place) const
    {
        return isSwept(place) ? m_band.outside(place) : std::min(m_caps[0].outside(place), m_caps[1].outside(place));
    }

    // Which side of the two ends a place is on says whether its angle lies between theirs.

    bool isAfterStart(Place place) const
    {
        return m_start.x * (place.y - m_centre.y) >= m_start.y * (place.x - m_centre.x);
    }

    bool isBeforeEnd(Place place) const { return m_end.x * (place.y - m_centre.y) <= m_end.y * (place.x - m_centre.x); }

    bool isSwept(Place place) const
    {
        return m_isHalfOrLess ? isAfterStart(place) && isBeforeEnd(place) : isAfterStart(place) || isBeforeEnd(place);
    }

    /// Whether all of a pixel is: it lies on a side when its corners do.
    bool isWhollySwept(int x, int y) const
    {
        const auto all = [x, y](auto isOnSide) {
            const double left = x, top = y;
            return isOnSide(Place { left, top }) && isOnSide(Place { left + 1, top })
                && isOnSide(Place { left, top + 1 }) && isOnSide(Place { left + 1, top + 1 });
        };
        const bool isAfter = all([this](Place place) { return isAfterStart(place); });
        const bool isBefore = all([this](Place place) { return isBeforeEnd(place); });
        return m_isHalfOrLess ? isAfter && isBefore : isAfter || isBefore;
    }

    Place m_centre;
    Place m_start; // directions, of length 1
    Place m_end;
    bool m_isHalfOrLess;
    Band m_band;
    std::array<Band, 2> m_caps;
};

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
        const auto rows = onSheet(area.rows()), columns = onSheet(area.columns());
        for (int y = rows.first; y < rows.end; ++y) {
            auto pixel = m_alpha.begin() + y * m_side + columns.first;
            for (int x = columns.first; x < columns.end; ++x, ++pixel)
                *pixel = mix(*pixel, area.share(x, y));
        }
    }

    Span onSheet(Span span) const { return { std::max(span.first, 0), std::min(span.end, m_side) }; }

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
