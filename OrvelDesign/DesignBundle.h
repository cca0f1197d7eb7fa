#pragma once

#include "OrvelPlatform/Base/Bundle.h"

namespace orvel {

/// The design system's own resources: typefaces, symbols and textures. Found once, on first use, and kept; a program
/// that ships without it stops with "unable to find bundle named OrvelDesign_OrvelDesign".
const Bundle& designBundle();

}
