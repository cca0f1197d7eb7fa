#pragma once

#include <optional>
#include <string>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetSize.h"

namespace orvel {

/// What the layouts of all sizes have in common: the room to the canvas's edges, and that one sentence is read aloud
/// for everything in it, where there is one. Actions in it still act.
struct WidgetFrame {
    WidgetSize size;
    std::optional<std::string> sentence; // absent: what is in it is read piece by piece
    View content;

    View body(const Environment& environment) const;
};

}
