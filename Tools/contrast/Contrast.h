#pragma once

#include "OrvelDesign/RGBA.h"

namespace orvel {

/// `above` as it looks upon the opaque colour `beneath`.
RGBA composited(const RGBA& above, const RGBA& beneath);

/// The contrast ratio of two opaque colours after WCAG 2.2: from 1 (equal) to 21 (black and white).
double contrastRatio(const RGBA& a, const RGBA& b);

}
