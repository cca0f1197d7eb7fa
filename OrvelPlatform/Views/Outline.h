#pragma once

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"

/// Outlines are shapes without a place: each fits itself into the rectangle that it is drawn in.
namespace orvel {

struct Rectangle {
    bool operator==(const Rectangle&) const = default;
};

struct RoundedRectangle {
    double radius; // points; drawn at most half of the shorter side
    bool operator==(const RoundedRectangle&) const = default;
};

struct Capsule {
    bool operator==(const Capsule&) const = default;
};

struct Ellipse {
    bool operator==(const Ellipse&) const = default;
};

/// The part of the ellipse from `start`, swept clockwise; in turns, with 0 at the top. Stroked it is open, filled a
/// slice without its corner at the centre.
struct Arc {
    double start; // turns
    double sweep; // turns; drawn at most 1
    bool operator==(const Arc&) const = default;
};

/// The ellipse without the ellipse `width` further in.
struct Ring {
    double width; // points
    bool operator==(const Ring&) const = default;
};

using Outline = std::variant<Rectangle, RoundedRectangle, Capsule, Ellipse, Arc, Ring>;

/// One step of a free path.
struct PathStep {
    enum class Kind : std::uint8_t { move, line, curve, close };

    Kind kind;
    std::array<Point, 3> points {}; // the end point alone; for a curve two control points, then the end

    bool operator==(const PathStep&) const = default;
};

using Path = std::vector<PathStep>;

}
