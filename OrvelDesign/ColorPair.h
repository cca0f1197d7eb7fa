#pragma once

#include <optional>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/RGBA.h"

namespace orvel::Tokens {

/// One colour token in all its variants: dusk is the dark appearance, dawn the light one.
///
/// A variant that is absent means that the token ignores the setting it stands for. Less transparency wins over more
/// contrast where a token has an answer to both.
struct ColorPair {
    RGBA dusk;
    RGBA dawn;
    std::optional<RGBA> duskHighContrast = std::nullopt; // when the user asks for more contrast
    std::optional<RGBA> dawnHighContrast = std::nullopt;
    std::optional<RGBA> duskSolid = std::nullopt; // opaque, when the user asks for less transparency
    std::optional<RGBA> dawnSolid = std::nullopt;

    constexpr RGBA rgba(ColorFlags flags) const
    {
        const auto& solid = flags.dark ? duskSolid : dawnSolid;
        const auto& highContrast = flags.dark ? duskHighContrast : dawnHighContrast;
        if (flags.reduceTransparency && solid)
            return *solid;
        if (flags.increaseContrast && highContrast)
            return *highContrast;
        return flags.dark ? dusk : dawn;
    }

    bool operator==(const ColorPair&) const = default;
};

}
