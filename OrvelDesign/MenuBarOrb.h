#pragma once

#include <variant>
#include <vector>

#include "OrvelDesign/BiggerText.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelDesign/TypeMetrics.h"

namespace orvel {

/// The cases of `MenuBarOrbState`.
namespace MenuBarOrb {
struct Active {
    double breath; // how full the breath is, 0 to 1
    bool operator==(const Active&) const = default;
};
struct Focus {
    double remaining; // the share of the Focus still to run, 0 to 1
    bool operator==(const Focus&) const = default;
};
struct Idle {
    bool operator==(const Idle&) const = default;
};
struct Unlock {
    bool operator==(const Unlock&) const = default;
};
struct Fix { // something needs the user
    bool operator==(const Fix&) const = default;
};
}

/// What the orb in the menu bar shows.
using MenuBarOrbState =
    std::variant<MenuBarOrb::Active, MenuBarOrb::Focus, MenuBarOrb::Idle, MenuBarOrb::Unlock, MenuBarOrb::Fix>;

/// The menu bar's orb as numbers: which marks stand where, for whoever draws them. The picture is a template, tinted by
/// the bar, so a mark has an alpha and no colour.
namespace MenuBarOrbGlyph {
inline constexpr double glyph = Tokens::Space::macMenubarGlyph; // the ring's side, in points
inline constexpr double imageSide = 22; // the picture's side, in points
inline constexpr double titleGap = 4; // between the glyph and a title beside it, in points

/// A place in pixels from the picture's top left corner.
struct Place {
    double x;
    double y;
    bool operator==(const Place&) const = default;
};

/// The area between a circle of `diameter` and the one `width` inside it.
struct Ring {
    Place centre;
    double diameter;
    double width;
    double alpha;
    bool operator==(const Ring&) const = default;
};

/// A line with round caps, clockwise from `start`. Angles in radians, 0 to the right, positive downward.
struct Arc {
    Place centre;
    double radius;
    double width;
    double start;
    double sweep;
    double alpha;
    bool operator==(const Arc&) const = default;
};

struct Dot {
    Place centre;
    double diameter;
    double alpha;
    bool operator==(const Dot&) const = default;
};

/// A circle within which everything drawn before is wiped out.
struct Hole {
    Place centre;
    double diameter;
    bool operator==(const Hole&) const = default;
};

using Mark = std::variant<Ring, Arc, Dot, Hole>;

/// The marks in drawing order, in pixels, for a picture of `imageSide` × `scale` pixels a side. `scale` is at least 1.
std::vector<Mark> marks(const MenuBarOrbState& state, int scale);

/// The font of a title beside the glyph: the body role, with digits that do not jump while they count.
TypeMetrics titleFont(BiggerText bigger);
}

}
