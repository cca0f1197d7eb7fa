#include "OrvelDesign/Bezier.h"

namespace orvel {

namespace {

/// One coordinate of the curve, as the polynomial ((a t + b) t + c) t that has the end points 0 and 1.
struct Coordinate {
    double a, b, c;

    Coordinate(double first, double second) : a(1 + 3 * first - 3 * second), b(3 * second - 6 * first), c(3 * first) { }

    double at(double t) const { return ((a * t + b) * t + c) * t; }
    double slope(double t) const { return (3 * a * t + 2 * b) * t + c; }
};

/// The t whose x is given. Newton's steps inside a bracket that each step narrows: where the slope vanishes or a step
/// would leave the bracket, its middle is taken instead.
double parameter(const Coordinate& x, double target)
{
    double low = 0, high = 1, t = target;
    // Halving alone would exhaust a double's digits within these steps.
    for (int step = 0; step < 64; ++step) {
        const double error = x.at(t) - target;
        if (error == 0)
            return t;
        (error < 0 ? low : high) = t;
        const double newton = t - error / x.slope(t);
        const double next = newton > low && newton < high ? newton : low + (high - low) / 2;
        if (next == t)
            return t;
        t = next;
    }
    return t;
}

}

double Bezier::value(double x) const
{
    if (!(x > 0))
        return 0;
    if (x >= 1)
        return 1;
    if (x1 == y1 && x2 == y2)
        return x; // the same polynomial on both axes
    return Coordinate(y1, y2).at(parameter(Coordinate(x1, x2), x));
}

}
