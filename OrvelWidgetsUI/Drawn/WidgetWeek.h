#pragma once

#include <vector>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// How often the user stayed off on each of the last seven days: bars above the days' letters, today at the trailing
/// edge. A bar is as wide as it would be among seven also where there are fewer. The sentence of the widget says the
/// same in words.
struct WidgetWeek {
    std::vector<WidgetContent::Bar> bars; // today last
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
