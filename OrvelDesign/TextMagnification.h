#pragma once

#include "OrvelPlatform/Base/Environment.h"

namespace orvel {

/// How much larger a widget is drawn for an environment's bigger text and system text scale: as much as body text
/// grows. A widget keeps its points, so that its layout stays as it is, and its window grows with it.
double textMagnification(const Environment& environment);

}
