#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/Drawn/BreatheButton.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// What keeps things quiet, and at its foot today's figures, the week and the breathe label. Read aloud it is one
/// sentence; its button still acts.
struct LargeWidget {
    WidgetContent content;
    WidgetLook look;
    BreatheButton breatheButton;

    View body(const Environment& environment) const;
};

}
