#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The orb in its pool of light, in the middle of a box.
struct WidgetOrbWithPool {
    double box; // side in points, of what it takes
    double size; // side in points, of the orb
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
