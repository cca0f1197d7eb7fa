#pragma once

namespace orvel {

/// A card's outline: a rounded rectangle, drawn inside the rectangle it is given by `inset` on every side. Lengths in
/// points.
struct CardShape {
    double radius;
    double inset = 0;

    /// A rectangle with corners of one radius.
    struct Outline {
        double x;
        double y;
        double width;
        double height;
        double radius;
        bool operator==(const Outline&) const = default;
    };

    /// The same card drawn further in, or out where `amount` is negative.
    constexpr CardShape insetBy(double amount) const { return { radius, inset + amount }; }

    /// The outline in a rectangle, whose own radius does not matter. The inset shrinks the radius too, so that nested
    /// outlines keep one distance round their corners; neither a side nor the radius falls below 0, and the radius
    /// never exceeds half of the shorter side.
    Outline path(const Outline& rectangle) const;

    bool operator==(const CardShape&) const = default;
};

}
