#pragma once

#include <expected>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Task.h"

namespace orvel {

/// The way to the front for an application that works in the background.
class Foreground {
public:
    Foreground() = default;
    Foreground(const Foreground&) = delete;
    Foreground& operator=(const Foreground&) = delete;
    virtual ~Foreground() = default;

    /// Asks to go on in the foreground, without a dialog. A fault where the user or the desktop declines.
    virtual Task<std::expected<void, Fault>> request() = 0;
};

}
