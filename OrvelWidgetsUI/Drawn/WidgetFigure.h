#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// One of today's figures above its label; one element, "3 breaths".
struct WidgetFigure {
    WidgetContent::Number number;
    bool large;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
