#pragma once

#include "OrvelPlatform/Views/StackLayout.h"
#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// A line of one point between groups, as long as there is room along its axis. It means nothing read aloud.
struct WidgetHairline {
    WidgetLook look;
    Axis axis = Axis::horizontal;

    View body(const Environment& environment) const;
};

}
