#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetLook.h"
#include "OrvelWidgetsUI/WidgetSize.h"

namespace orvel {

/// A widget's layout on its canvas, aligned to the top leading corner and clipped to the edges, which the orb's light
/// would cross. Everything in it has the look's colour scheme.
struct WidgetCanvas {
    WidgetSize size;
    WidgetLook look;
    View content;

    View body(const Environment& environment) const;
};

}
