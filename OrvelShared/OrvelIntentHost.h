#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvel {

/// What intents ask of the running application. Called on the main loop's thread.
class OrvelIntentHost {
public:
    OrvelIntentHost() = default;
    OrvelIntentHost(const OrvelIntentHost&) = delete;
    OrvelIntentHost& operator=(const OrvelIntentHost&) = delete;
    virtual ~OrvelIntentHost() = default;

    /// Opens a breath; absent: the application's own choice.
    virtual void openBreathe(std::optional<std::string> style, std::optional<std::int64_t> minutes) = 0;

    virtual void startFocus() = 0;

    /// The name of the Focus that runs; absent when there is nothing to end.
    virtual std::optional<std::string> runningFocusName() = 0;

    virtual void endFocus() = 0;
};

}
