#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/Drawn/BreatheButton.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// What keeps things quiet, with the progress or the breathe label at its foot, beside today's figures.
struct MediumWidget {
    WidgetContent content;
    WidgetLook look;
    BreatheButton breatheButton;

    View body(const Environment& environment) const;
};

}
