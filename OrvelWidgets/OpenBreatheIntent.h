#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelWidgets/IntentMetadata.h"
#include "OrvelWidgets/IntentSurroundings.h"

namespace orvel {

/// Opens a breath: what the Breathe control and the status widget's button run.
struct OpenBreatheIntent {
    std::optional<std::string> style = std::nullopt; // absent, as the length below: the application's own choice
    std::optional<std::int64_t> minutes = std::nullopt;

    static constexpr std::string_view name = "OpenBreathe";
    static constexpr std::string_view styleName = "style";
    static constexpr std::string_view minutesName = "minutes";
    static IntentMetadata metadata();

    /// Tells the application's host within the application, and opens a link elsewhere.
    Task<void> perform(IntentSurroundings in) const;

    bool operator==(const OpenBreatheIntent&) const = default;
};

}
