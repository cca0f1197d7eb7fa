#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The orb at rest in a widget. In the tinted looks it is drawn in the desktop's one colour.
struct WidgetOrb {
    double size; // side in points
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
