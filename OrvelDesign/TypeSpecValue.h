#pragma once

#include <array>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The two faces: rounded for every label of the interface, serif for the large calm texts.
enum class TypeFamily { rounded, serif };

template <>
inline constexpr std::array<std::string_view, 2> rawValues<TypeFamily> { "rounded", "serif" };

/// One text style.
struct TypeSpecValue {
    TypeFamily family;
    double size; // points
    double lineHeight; // points
    int weight; // on the scale from 100 to 900: 300 light, 400 regular, 600 semibold, 700 bold
    bool italic;
    double tracking; // points added between letters

    /// The same face at another size.
    constexpr TypeSpecValue resized(double newSize, double newLineHeight) const
    {
        return { family, newSize, newLineHeight, weight, italic, tracking };
    }

    constexpr TypeSpecValue withWeight(int newWeight) const
    {
        return { family, size, lineHeight, newWeight, italic, tracking };
    }

    bool operator==(const TypeSpecValue&) const = default;
};

}
