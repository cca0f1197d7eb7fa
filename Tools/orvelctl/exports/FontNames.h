#pragma once

#include <string_view>

#include "OrvelDesign/TypeSpecValue.h"

namespace orvel {

/// The font that a family is set in, and the generic one for where it is missing, as other programs name them.
struct FontNames {
    std::string_view name;
    std::string_view generic;
};

constexpr FontNames fontNames(TypeFamily family)
{
    if (family == TypeFamily::serif)
        return { "Source Serif 4", "serif" };
    return { "Nunito", "sans-serif" };
}

}
