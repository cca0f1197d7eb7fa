#pragma once

#include <expected>
#include <optional>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Base/Workspace.h"
#include "OrvelPlatform/Desktop/BusConnection.h"
#include "OrvelPlatform/Desktop/EventLoop.h"
#include "OrvelPlatform/Desktop/LinkHandler.h"

namespace orvel {

/// Opens URLs in whichever application is chosen for them.
///
/// Somebody else starts it, where there is anybody: its own bus name, the user's service manager, or the desktop's
/// portal. What this process started itself would inherit its limits (a shut-in extension may write nowhere) and end
/// with it, so that comes last.
class LinkOpener : public Workspace {
public:
    /// The loop outlives the opener.
    explicit LinkOpener(const EventLoop& loop) : m_loop(loop) { }

    void open(const URL& url, std::optional<std::string> activationToken) override;

    /// The same, and what came of it. Nothing is opened twice: when it is unknown whether the application got the
    /// URL, that is a fault.
    Task<std::expected<void, Fault>> opened(std::string url, std::optional<std::string> activationToken);

private:
    const EventLoop& m_loop;
};

}
