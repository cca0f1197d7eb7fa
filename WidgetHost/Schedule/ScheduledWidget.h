#pragma once

#include <memory>
#include <optional>
#include <string>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelPlatform/Desktop/HostPicture.h"

namespace orvel {

/// A widget that somebody placed on the desktop.
struct ScheduledWidget {
    std::string id; // the host's own
    std::string kind;
    HostEnvironment environment; // its family included

    bool operator==(const ScheduledWidget&) const = default;
};

/// What a widget shows.
struct ShownWidget {
    std::shared_ptr<const HostPicture> picture {}; // the last good one; null: none came yet
    std::optional<HostEnvironment> environment {}; // in which it was drawn; absent without one
    std::optional<Date> staleSince {}; // present: the extension has owed an answer for a minute or more, since then

    bool operator==(const ShownWidget&) const = default;
};

}
