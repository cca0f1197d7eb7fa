#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The breathe widget on its whole canvas, the small one, without the background behind it.
struct OrvelBreatheWidgetView {
    WidgetContent content;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
