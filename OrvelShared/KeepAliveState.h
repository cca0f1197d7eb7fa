#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelShared/SharedFile.h"

namespace orvel {

/// What the application tells its guard, a small process that keeps it open while a commitment runs: who it is, whether
/// it ended in an orderly way, and until when it is committed. The guard's decisions follow from it.
struct KeepAliveState {
    std::int32_t pid; // of the running application
    std::string appPath; // of its bundle
    bool clean; // it ended in an orderly way
    std::optional<Date> commitmentUntil; // absent: nothing runs
    bool ultraHard; // the commitment is in Ultra Hard mode
    bool appReleased; // the user released the application from the guard
    bool bypassNoted; // a bypass has been noted already
    Date updatedAt; // when this was last written

    bool operator==(const KeepAliveState&) const = default;

    /// "keepalive.json" in the application group's container, which is found at the first call and kept.
    static const SharedFile<KeepAliveState>& file();

    /// Whether the application, which is gone, is to be started again: it did not end in an orderly way, and its
    /// commitment ends later than `at`.
    bool shouldRelaunch(Date at) const;

    /// Whether the application was stopped to get around an Ultra Hard commitment: it is started by somebody else than
    /// the guard, and had stopped writing more than two minutes ago while it was still committed.
    bool wasBypassed(bool relaunchedByAgent, Date at) const;

    /// Whether an application bundle may be opened. One in the Trash may only while an Ultra Hard commitment has not
    /// released it.
    bool mayOpen(std::string_view fromBin) const;
};

// The JSON form is instantiated once, beside the record's rules.
extern template std::expected<KeepAliveState, Fault> decodeJson<KeepAliveState>(std::string_view bytes);
extern template std::expected<std::string, Fault> encodeJson<KeepAliveState>(
    const KeepAliveState& state, JsonAudience audience);

}
