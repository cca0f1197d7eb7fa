#pragma once

/// Lengths are in points. The y axis points down; x grows to the right also where the layout runs from the right.
namespace orvel {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    constexpr Rect() = default;
    constexpr Rect(double left, double top, double itsWidth, double itsHeight)
        : x(left), y(top), width(itsWidth), height(itsHeight)
    {
    }
    constexpr Rect(Point origin, Size size) : Rect(origin.x, origin.y, size.width, size.height) { }

    constexpr Point origin() const { return { x, y }; }
    constexpr Size size() const { return { width, height }; }
    constexpr Point center() const { return { x + width / 2, y + height / 2 }; }
    constexpr double right() const { return x + width; }
    constexpr double bottom() const { return y + height; }

    /// The same rectangle with every side moved inward, or outward for a negative amount; never of a negative size.
    Rect insetBy(double amount) const;

    /// Whether no part of the other one lies outside.
    constexpr bool contains(const Rect& other) const
    {
        return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
    }

    bool operator==(const Rect&) const = default;
};

/// Whether a layout starts at the left or at the right.
enum class LayoutDirection { leftToRight, rightToLeft };

/// Room at the four edges. The sides are the leading and the trailing one: which of them is left follows the layout.
struct Insets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;

    static constexpr Insets all(double length) { return { length, length, length, length }; }
    static constexpr Insets sides(double horizontal, double vertical)
    {
        return { vertical, horizontal, vertical, horizontal };
    }

    bool operator==(const Insets&) const = default;
};

/// What is left of a rectangle within insets; never of a negative size.
Rect inset(const Rect& outer, const Insets& insets, LayoutDirection direction);

}
