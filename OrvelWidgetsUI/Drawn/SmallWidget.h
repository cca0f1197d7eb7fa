#pragma once

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The orb, or the ring of what is left, above a few words. Read aloud it is one sentence. The breathe widget has the
/// same layout with a larger orb.
struct SmallWidget {
    WidgetContent content;
    WidgetLook look;

    View body(const Environment& environment) const;
};

}
