#pragma once

#include <array>
#include <optional>

#include "OrvelDesign/RGBA.h"
#include "OrvelPlatform/Base/Environment.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// A linear gradient over a whole widget, mixed in the sRGB space. Its line runs between unit points: 0, 0 is the top
/// left corner and 1, 1 the bottom right.
struct WidgetGradient {
    struct UnitPoint {
        double x;
        double y;
        bool operator==(const UnitPoint&) const = default;
    };
    struct Stop {
        double location; // 0 at the start, 1 at the end
        RGBA color;
        bool operator==(const Stop&) const = default;
    };

    UnitPoint start;
    UnitPoint end;
    std::array<Stop, 3> stops;

    bool operator==(const WidgetGradient&) const = default;
};

/// What stands behind a whole widget: nearly top to bottom, leaning to the right. Absent in the tinted looks, whose
/// background is transparent and the desktop's to fill.
std::optional<WidgetGradient> widgetBackground(WidgetLook look, const Environment& outside);

}
