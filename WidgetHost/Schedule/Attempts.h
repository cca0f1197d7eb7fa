#pragma once

#include <optional>

#include "OrvelPlatform/Base/Clock.h"

namespace orvel {

/// The pause after so many failures in a row, 1 or more: a second, doubling up to five minutes.
Clock::Uptime pauseAfter(int failures);

/// How a request goes on that is made until it has a good answer. Pauses are measured in uptime, so that setting the
/// clock neither cuts nor stretches them.
class Attempts {
public:
    /// An answer that is owed for longer is missed.
    static constexpr Clock::Uptime patience = std::chrono::minutes { 1 };

    /// The request is made.
    void begin(const Clock& clock);

    /// It came to nothing, or to what was wanted.
    void fail(Clock::Uptime now);
    void succeed() { *this = {}; }

    /// The cause of failures may be gone: the next pause is the shortest again.
    void startAfresh();

    int failures() const { return m_failures; }
    bool isDue(Clock::Uptime now) const { return m_retry && *m_retry <= now; }

    /// The instant since which an answer is owed; absent while that is no longer than anybody would wait.
    std::optional<Date> missedSince(Clock::Uptime now) const;

    /// When one of these answers changes next by itself.
    std::optional<Clock::Uptime> nextChange(Clock::Uptime now) const;

private:
    struct Instant {
        Clock::Uptime uptime;
        Date date;
    };

    int m_failures = 0;
    std::optional<Clock::Uptime> m_retry; // after a failure
    std::optional<Instant> m_owedSince; // from the first attempt to the good answer
};

}
