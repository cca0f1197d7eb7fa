#pragma once

#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>
#include <optional>

#include "OrvelPlatform/Base/Cancellation.h"
#include "OrvelPlatform/Base/Date.h"

namespace orvel {

class Sleep;

/// Time as it passes for one main loop: tests move one by hand, so that waits and deadlines need no waiting. For the
/// loop's thread.
class Clock {
public:
    /// Time that goes on evenly from some start, whatever the clock on the wall is set to: for deadlines.
    using Uptime = std::chrono::microseconds;

    /// A call that is to come. Destroyed, it does not come any more.
    class Timer {
    public:
        Timer() = default;
        Timer(const Timer&) = delete;
        Timer& operator=(const Timer&) = delete;
        virtual ~Timer() = default;
    };

    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual Date now() const = 0;
    virtual Uptime uptime() const = 0;

    /// Calls `what` once on the loop, never before this returns: after a span, or at an instant of the clock on the
    /// wall, also when that is set past it. A span that is not above 0 and an instant that is over are due at once.
    /// The timer may be destroyed by `what`. It must not outlive the clock.
    [[nodiscard]] virtual std::unique_ptr<Timer> after(Uptime span, std::function<void()> what) = 0;
    [[nodiscard]] virtual std::unique_ptr<Timer> at(Date date, std::function<void()> what) = 0;

    /// Waits, unless the wish to cancel is made, before or meanwhile: then it ends on the spot. To be kept in a
    /// variable and awaited once:
    ///
    ///     auto sleep = clock.sleep(50ms);
    ///     co_await sleep;
    ///
    Sleep sleep(Uptime span, std::optional<Cancellation> cancellation = std::nullopt);
    Sleep sleepUntil(Date date, std::optional<Cancellation> cancellation = std::nullopt);
};

/// How a sleep ended.
enum class SleepEnd { due, cancelled };

/// A wait on a clock; see `Clock::sleep`. Destroyed, it is given up.
class [[nodiscard]] Sleep {
public:
    using Starter = std::function<std::unique_ptr<Clock::Timer>(std::function<void()> what)>;

    Sleep(Starter starter, std::optional<Cancellation> cancellation);
    Sleep(const Sleep&) = delete; // a timer knows its place
    Sleep& operator=(const Sleep&) = delete;

    struct Awaiter {
        Sleep* sleep;
        bool await_ready() const { return sleep->isCancelledBefore(); }
        void await_suspend(std::coroutine_handle<> waiting) const { sleep->begin(waiting); }
        SleepEnd await_resume() const { return sleep->m_end; }
    };
    Awaiter operator co_await() & { return { this }; }
    void operator co_await() && = delete; // keep it in a variable: g++ 12 may destroy it twice otherwise

private:
    bool isCancelledBefore();
    void begin(std::coroutine_handle<> waiting);
    void end(SleepEnd how);

    Starter m_starter;
    std::optional<Cancellation> m_cancellation;
    std::coroutine_handle<> m_waiting;
    std::unique_ptr<Clock::Timer> m_timer;
    Cancellation::Watch m_watch;
    SleepEnd m_end = SleepEnd::due;
};

}
