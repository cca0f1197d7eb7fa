#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

#include "OrvelPlatform/Base/Clock.h"

namespace orvel {

/// The earlier of two instants of which either may be absent.
template <typename T>
std::optional<T> earlier(std::optional<T> one, std::optional<T> other)
{
    return one && other ? std::min(one, other) : one ? one : other;
}

/// When something falls due next: at an instant of the clock on the wall, or of uptime. Either may come first.
struct NextWake {
    std::optional<Date> date {};
    std::optional<Clock::Uptime> uptime {};

    void include(std::optional<Date> other);
    void include(std::optional<Clock::Uptime> other);
};

/// One timer for whatever falls due next.
class WakeTimer {
public:
    /// `wake` is called when something is due, and may set the timer anew.
    WakeTimer(Clock& clock, std::function<void()> wake);
    WakeTimer(const WakeTimer&) = delete; // its timer knows its place
    WakeTimer& operator=(const WakeTimer&) = delete;

    /// Nothing is touched when the next wake is the one that it is set to.
    void set(const NextWake& next);

private:
    using Due = std::variant<Date, Clock::Uptime>;
    std::optional<Due> first(const NextWake& next) const;

    Clock& m_clock;
    std::function<void()> m_wake;
    std::optional<Due> m_due; // what the timer is set to
    std::unique_ptr<Clock::Timer> m_timer;
};

}
