#pragma once

#include <optional>
#include <string>

#include "OrvelPlatform/Base/URL.h"

namespace orvel {

/// The desktop, which hands a URL to whichever application opens such ones.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// Asks for a URL to be opened; what comes of it is not reported. The token, from whoever the user acted on, lets
    /// the application come to the front.
    virtual void open(const URL& url, std::optional<std::string> activationToken) = 0;
};

}
