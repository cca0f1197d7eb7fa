#pragma once

#include "OrvelPlatform/Drawing/CairoPath.h"
#include "OrvelPlatform/Drawing/Sources.h"
#include "OrvelPlatform/Views/Canvas.h"

namespace orvel {

/// Draws a shadow with the context's source: outside the outline, an inset one inside. The blurred shape is kept.
void drawShadow(const Sources& sources, _cairo* context, const PlacedOutline& outline, const Shadow& shadow);

}
