#pragma once

#include "OrvelDesign/MenuBarOrb.h"
#include "OrvelShared/WidgetMoment.h"

namespace orvel {

/// What the orb in a menu bar or a tray shows at a moment: something let through for a while, the Focus that runs with
/// the share of it that is left, a full breath while anything else keeps things quiet, or rest.
MenuBarOrbState menuBarOrbState(const WidgetMoment& moment);

}
