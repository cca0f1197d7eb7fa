#pragma once

#include <limits>
#include <optional>

#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// What a parent offers a child along one side: absent asks for the ideal length, 0 for the least, infinite for the
/// most; anything else is the room there is.
using ProposedLength = std::optional<double>;

inline constexpr double infiniteLength = std::numeric_limits<double>::infinity();

/// The size that a parent offers. The child answers with the size that it takes, which may be larger.
struct Proposal {
    ProposedLength width;
    ProposedLength height;

    static const Proposal ideal, least, most;

    static constexpr Proposal of(Size size) { return { size.width, size.height }; }

    bool operator==(const Proposal&) const = default;
};

inline constexpr Proposal Proposal::ideal {};
inline constexpr Proposal Proposal::least { 0, 0 };
inline constexpr Proposal Proposal::most { infiniteLength, infiniteLength };

/// What a view takes: its size, and how far below its top the baselines of its first and last line of text lie. What
/// holds no text has both at its bottom edge, so that it stands on a line like a letter.
struct Extent {
    Size size;
    double firstBaseline = 0;
    double lastBaseline = 0;

    constexpr Extent() = default;
    constexpr Extent(Size itsSize) : Extent(itsSize, itsSize.height, itsSize.height) { }
    constexpr Extent(Size itsSize, double first, double last) : size(itsSize), firstBaseline(first), lastBaseline(last)
    {
    }

    /// The same baselines, all moved down by `y` in something of another size.
    constexpr Extent movedInto(Size outer, double y) const { return { outer, firstBaseline + y, lastBaseline + y }; }

    bool operator==(const Extent&) const = default;
};

/// The extent of a view that takes all the room it is offered, and none by itself.
constexpr Extent allOf(const Proposal& proposed)
{
    return Size { proposed.width.value_or(0), proposed.height.value_or(0) };
}

}
