#pragma once

#include <chrono>

#include "OrvelPlatform/Desktop/EventLoop.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

struct RunnerOptions {
    /// How long nobody has to ask before the process leaves.
    std::chrono::milliseconds idleTime { 30'000 };

    /// How long the process stays after it gave its name up, for those who had already found it under its number.
    std::chrono::milliseconds farewell { 50 };
};

/// The whole life of an extension's process: serves the extension on the session's bus under its name, and returns the
/// process's exit status once nobody has asked for a while or the process is told to end (SIGTERM, SIGINT). Whatever
/// was asked until then is answered. Where there is no bus, or another process has the name, a message goes to standard
/// error and the status is 1.
///
/// `loop` is the extension's own, on which its tasks wait too.
[[nodiscard]] int runExtension(EventLoop& loop, WidgetExtension& extension, const RunnerOptions& options = {});

}
