#pragma once

namespace orvel {

/// A cubic timing curve from (0, 0) to (1, 1) by its two control points. x1 and x2 lie in 0 to 1, so that every x has
/// one y.
struct Bezier {
    double x1;
    double y1;
    double x2;
    double y2;

    /// y at `x`, to the precision of a double. Exactly 0 at 0 and exactly 1 at 1; what lies outside 0 to 1 is taken for
    /// the nearer end.
    double value(double x) const;

    bool operator==(const Bezier&) const = default;
};

}
