#pragma once

#include <string>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The small label above a title, in capitals. It is read aloud as it is written, since capitals may be spelled.
struct WidgetKicker {
    std::string words;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
