#pragma once

#include <optional>
#include <string>

#include "OrvelPlatform/Base/Cancellation.h"
#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Base/Foreground.h"
#include "OrvelPlatform/Base/Workspace.h"
#include "OrvelShared/OrvelLink.h"

namespace orvel {

/// Where an intent runs. All that it refers to outlives the intent.
struct IntentSurroundings {
    Clock& clock;
    Workspace& workspace;
    Foreground& foreground;
    std::optional<std::string> activationToken = std::nullopt; // of the click that runs the intent
    Cancellation cancellation = {};

    /// Hands a link to the application through the desktop.
    void open(const OrvelLink& link) const { workspace.open(link.url(), activationToken); }
};

/// How long an intent waits for an application that is starting.
inline constexpr Seconds longestWaitForHost { 5 };

}
