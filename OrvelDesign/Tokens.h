#pragma once

/// The one table of raw design values from which every look is built: distances, radii, durations, curves, opacities,
/// shadows, text styles and colours. Lengths are points, durations seconds. Nothing above writes a colour or a size of
/// its own where a token exists. Each namespace ends with `all`, its tokens by name in their order.

#include "OrvelDesign/TokensColor.h"
#include "OrvelDesign/TokensMotion.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelDesign/TokensType.h"
