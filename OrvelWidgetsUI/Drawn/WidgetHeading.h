#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The header of the medium and large widgets with the title and the detail below it.
struct WidgetHeading {
    WidgetContent content;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
