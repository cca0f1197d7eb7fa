#pragma once

#include <optional>
#include <string>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"

namespace orvel {

/// The symbol of what keeps things quiet in a disc of its tone, and the kicker beside it. All of it is the accent of a
/// tinted picture.
struct WidgetHeader {
    WidgetContent::State state; // its symbol stands in for one that nobody knows
    std::string symbol;
    std::string tone;
    std::optional<std::string> kicker;
    WidgetLook look;

    WidgetHeader(const WidgetContent& content, WidgetLook itsLook);

    View body(const Environment& environment) const;
};

}
