#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// What stands behind a whole widget, as large as it is offered. In the tinted looks it draws nothing: the desktop
/// fills what is behind.
struct WidgetBackground {
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
