#pragma once

#include <array>
#include <string_view>

#include "OrvelDesign/OrvelColor.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The tones with which a person marks Blocks and Lists, stored by their names.
enum class IdentityTone { lavender, periwinkle, sky, teal, sage, sand, rose, mauve };

template <>
inline constexpr std::array<std::string_view, 8> rawValues<IdentityTone> {
    "lavender",
    "periwinkle",
    "sky",
    "teal",
    "sage",
    "sand",
    "rose",
    "mauve",
};

/// The opacity at which a tone's colour fills a chip.
inline constexpr double chipOpacity = 0.18;

/// The tone's colour, named "block-lavender" to "block-mauve".
OrvelColor color(IdentityTone tone);

/// The tone that a widget shows for a name: every name that is no tone's is lavender.
IdentityTone toneOrLavender(std::string_view name);

}
