#pragma once

#include <string>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// What a breath is started with: an icon and words on a capsule. In the tinted looks both are cut out of it. It does
/// nothing by itself; who lays it out wraps it in an action.
struct WidgetBreatheLabel {
    std::string text;
    bool large;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
