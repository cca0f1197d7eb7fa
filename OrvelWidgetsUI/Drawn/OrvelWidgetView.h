#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/Drawn/BreatheButton.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"
#include "OrvelWidgetsUI/WidgetSize.h"

namespace orvel {

/// The status widget on its whole canvas, without the background behind it. It has its look's colour scheme, whatever
/// it is drawn in.
struct OrvelWidgetView {
    WidgetContent content;
    WidgetSize size;
    WidgetLook look;
    BreatheButton breatheButton; // empty: the label stays as it is drawn

    View body(const Environment& environment) const;
};

}
