#pragma once

#include <concepts>
#include <string>
#include <variant>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// A colour in the sRGB space; components from 0 to 1, not premultiplied. Any type with these four components converts.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    constexpr Color() = default;
    constexpr Color(double r, double g, double b, double a = 1) : red(r), green(g), blue(b), alpha(a) { }
    template <typename Other>
    requires requires(const Other& other)
    {
        {
            other.red
            } -> std::convertible_to<double>;
        {
            other.green
            } -> std::convertible_to<double>;
        {
            other.blue
            } -> std::convertible_to<double>;
        {
            other.alpha
            } -> std::convertible_to<double>;
    }
    constexpr Color(const Other& other) : Color(other.red, other.green, other.blue, other.alpha) { }

    /// The same colour with its alpha multiplied.
    constexpr Color faded(double opacity) const { return { red, green, blue, alpha * opacity }; }

    bool operator==(const Color&) const = default;
};

/// A point in units of the rectangle that is painted: 0, 0 is its top left corner and 1, 1 the bottom right. Nothing
/// turns it round where the layout runs from the right: light falls from the same side for everybody.
struct UnitPoint {
    double x = 0;
    double y = 0;
    bool operator==(const UnitPoint&) const = default;
};

struct GradientStop {
    double location; // 0 at the start, 1 at the end; ascending
    Color color;
    bool operator==(const GradientStop&) const = default;
};

/// Mixed in the sRGB space along the line from `start` to `end`; the end colours go on beyond them.
struct LinearGradient {
    UnitPoint start;
    UnitPoint end;
    std::vector<GradientStop> stops;
    bool operator==(const LinearGradient&) const = default;
};

/// Mixed in the sRGB space from the centre outward; the last colour goes on beyond `radius`.
struct RadialGradient {
    UnitPoint center { 0.5, 0.5 };
    double radius = 0; // points
    std::vector<GradientStop> stops;
    bool operator==(const RadialGradient&) const = default;
};

/// A colour with a tile's light and shade in it, repeated from the rectangle's top left corner. They are as strong as
/// the colour leaves room for, both ways alike, so that on average the colour stays what it is. A name that the drawing
/// side does not know paints the colour alone.
struct Texture {
    std::string name;
    Color ground;
    double opacity = 1;
    bool operator==(const Texture&) const = default;
};

/// Removes what lies below, in both layers of a tinted picture.
struct Erase {
    bool operator==(const Erase&) const = default;
};

using Paint = std::variant<Color, LinearGradient, RadialGradient, Texture, Erase>;

}
