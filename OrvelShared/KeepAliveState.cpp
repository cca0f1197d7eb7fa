#include "OrvelShared/KeepAliveState.h"

#include "OrvelShared/AppGroup.h"

namespace orvel {

namespace {

/// Beyond this, a running application would have written again.
constexpr std::chrono::seconds stale { 120 };

constexpr std::string_view trash = "/.Trash/";

}

template <>
struct JsonForm<KeepAliveState> {
    static constexpr auto fields = std::tuple {
        JsonField { "appPath", &KeepAliveState::appPath },
        JsonDefaulted { "appReleased", &KeepAliveState::appReleased },
        JsonDefaulted { "bypassNoted", &KeepAliveState::bypassNoted },
        JsonField { "clean", &KeepAliveState::clean },
        JsonField { "commitmentUntil", &KeepAliveState::commitmentUntil },
        JsonField { "pid", &KeepAliveState::pid },
        JsonField { "ultraHard", &KeepAliveState::ultraHard },
        JsonField { "updatedAt", &KeepAliveState::updatedAt },
    };
};

template std::expected<KeepAliveState, Fault> decodeJson<KeepAliveState>(std::string_view bytes);
template std::expected<std::string, Fault> encodeJson<KeepAliveState>(
    const KeepAliveState& state, JsonAudience audience);

const SharedFile<KeepAliveState>& KeepAliveState::file()
{
    static const SharedFile<KeepAliveState> file("keepalive.json", AppGroup::container());
    return file;
}

bool KeepAliveState::shouldRelaunch(Date at) const
{
    return !clean && commitmentUntil && *commitmentUntil > at;
}

bool KeepAliveState::wasBypassed(bool relaunchedByAgent, Date at) const
{
    if (clean || !ultraHard || relaunchedByAgent || !commitmentUntil)
        return false;
    return at - updatedAt > stale && updatedAt < *commitmentUntil;
}

bool KeepAliveState::mayOpen(std::string_view fromBin) const
{
    return !fromBin.contains(trash) || (ultraHard && !appReleased);
}

}
