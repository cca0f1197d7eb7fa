#pragma once

#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Desktop/EventLoop.h"

namespace orvel {

/// The system's clocks on a loop. Nothing is polled: a timer of the clock on the wall is the system's own, which knows
/// when that clock is set. While the computer sleeps, uptime stands still.
class DesktopClock : public Clock {
public:
    /// The loop outlives the clock.
    explicit DesktopClock(const EventLoop& loop);
    ~DesktopClock() override;

    Date now() const override;
    Uptime uptime() const override;
    [[nodiscard]] std::unique_ptr<Timer> after(Uptime span, std::function<void()> what) override;
    [[nodiscard]] std::unique_ptr<Timer> at(Date date, std::function<void()> what) override;

    /// Calls `what` each time that somebody sets the clock on the wall, forward or back: what is shown for now may be
    /// wrong then.
    [[nodiscard]] std::unique_ptr<Timer> whenSet(std::function<void()> what);

private:
    class Dates;

    const EventLoop& m_loop;
    std::unique_ptr<Dates> m_dates; // from the first one on
};

}
