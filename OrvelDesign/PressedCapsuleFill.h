#pragma once

#include "OrvelDesign/ColorPair.h"

namespace orvel {

/// A colour as the toolkit wants it once it is resolved: sRGB components from 0 to 1 in single precision.
struct ResolvedColor {
    float red;
    float green;
    float blue;
    float alpha;

    bool operator==(const ResolvedColor&) const = default;
};

/// The pressed state of a filled colour: darker in the dark appearance, lighter in the light one, so that it always
/// moves towards its background. Less transparency plays no part in it.
RGBA pressed(const Tokens::ColorPair& pair, ColorFlags flags);

/// The fill of a pressed accent capsule.
struct PressedCapsuleFill {
    ResolvedColor resolve(const Environment& environment) const;
};

}
