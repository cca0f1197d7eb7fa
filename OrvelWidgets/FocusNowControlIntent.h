#pragma once

#include <string_view>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelWidgets/IntentMetadata.h"
#include "OrvelWidgets/IntentSurroundings.h"

namespace orvel {

/// Starts or ends a Focus: what the Focus control runs when it is switched.
struct FocusNowControlIntent {
    bool value; // the state that the user switched to

    static constexpr std::string_view name = "FocusNow";
    static constexpr std::string_view valueName = "value";
    static IntentMetadata metadata();

    /// Within the application its host starts the Focus, or ends the one that runs, after the application was asked to
    /// come forward; it is done whether or not that is granted. Elsewhere a link is opened, and the application decides
    /// what to show.
    Task<void> perform(IntentSurroundings in) const;

    bool operator==(const FocusNowControlIntent&) const = default;
};

}
