#pragma once

#include "WidgetHost/Desk/Surroundings.h"
#include "WidgetHost/Style/StyleSheet.h"

namespace orvel {

/// How the host's own windows look in the surroundings of its widgets.
StyleSettings styleIn(const Surroundings& around);

}
