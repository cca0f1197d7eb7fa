#pragma once

#include <functional>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// What a layout hands its breathe label to, and puts in its place: the label in whatever makes it act.
using BreatheButton = std::function<View(View)>;

}
