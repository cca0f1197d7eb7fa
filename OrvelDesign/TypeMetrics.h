#pragma once

#include "OrvelDesign/TypeSpecValue.h"

namespace orvel {

/// What a font is made from for one text at one moment. The family, weight, slant and tracking are those of `spec`, the
/// size and line height the ones here, after scaling.
struct TypeMetrics {
    TypeSpecValue spec;
    double size; // points
    double lineHeight; // points
    bool tabularDigits; // digits of one width, so that a counting number does not jump

    bool operator==(const TypeMetrics&) const = default;
};

}
