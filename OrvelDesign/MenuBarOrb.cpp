#include "OrvelDesign/MenuBarOrb.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "OrvelDesign/MacTypeRole.h"
#include "OrvelDesign/Progress.h"
#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Base/Precondition.h"

namespace orvel::MenuBarOrbGlyph {

namespace {

/// An even number of pixels, so that a dot's centre stays on the ring's.
double evenDiameter(double pixels)
{
    return std::max(2 * std::rint(pixels * 0.5), 2.0);
}

/// The quantities of the glyph at one scale, in pixels.
struct Geometry {
    double unit; // one point
    double margin = 3 * unit;
    double side = glyph * unit;
    Place centre { margin + side / 2, margin + side / 2 };
    double lineWidth = std::max(std::round(1.4 * unit), 1.0);
    double dot = evenDiameter(7.2 * unit);
    double smallDot = evenDiameter(4 * unit);

    Ring ring(double alpha) const { return { centre, side, lineWidth, alpha }; }
    Dot fullDot() const { return { centre, dot, 1 }; }
};

std::vector<Mark> activeMarks(const Geometry& g, double breath)
{
    const double fullness = clampedProgress(breath);
    const double size = 0.8 + 0.2 * fullness;
    const double alpha = 0.62 + 0.38 * fullness;
    return {
        g.ring(0.55),
        Dot { g.centre, 11 * g.unit * size, alpha * 0.22 },
        Dot { g.centre, g.dot * size, alpha },
    };
}

std::vector<Mark> focusMarks(const Geometry& g, double remaining)
{
    std::vector<Mark> marks { g.ring(0.3) };
    if (const double share = clampedProgress(remaining); share > 0) {
        using std::numbers::pi;
        marks.emplace_back(Arc {
            .centre = g.centre,
            .radius = g.side / 2 - g.lineWidth / 2,
            .width = g.lineWidth,
            .start = -pi / 2,
            .sweep = share * 2 * pi,
            .alpha = 1,
        });
    }
    marks.emplace_back(g.fullDot());
    return marks;
}

/// The badge stands at the ring's top right, apart from it by a gap of one point.
std::vector<Mark> fixMarks(const Geometry& g)
{
    const Place badge { g.margin + 15 * g.unit, g.margin + g.unit };
    return {
        g.ring(0.55),
        g.fullDot(),
        Hole { badge, 2 * g.unit + g.smallDot },
        Dot { badge, g.smallDot, 1 },
    };
}

}

std::vector<Mark> marks(const MenuBarOrbState& state, int scale)
{
    precondition(scale >= 1, "a glyph is drawn at a scale of at least 1");
    const Geometry g { .unit = static_cast<double>(scale) };
    return std::visit(Match {
                          [&](const MenuBarOrb::Active& active) { return activeMarks(g, active.breath); },
                          [&](const MenuBarOrb::Focus& focus) { return focusMarks(g, focus.remaining); },
                          [&](MenuBarOrb::Idle) {
                              return std::vector<Mark> { g.ring(0.7), Dot { g.centre, g.smallDot, 0.75 } };
                          },
                          [&](MenuBarOrb::Unlock) {
                              return std::vector<Mark> { g.ring(0.55), g.fullDot() };
                          },
                          [&](MenuBarOrb::Fix) { return fixMarks(g); },
                      },
        state);
}

TypeMetrics titleFont(BiggerText bigger)
{
    auto title = metrics(MacTypeRole::body, bigger, std::nullopt);
    title.tabularDigits = true;
    return title;
}

}
