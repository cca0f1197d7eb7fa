#include "OrvelPlatform/Desktop/DesktopClock.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

#include "OrvelPlatform/Base/File.h"

namespace orvel {

namespace {

using std::chrono::floor;
using std::chrono::microseconds;
using std::chrono::nanoseconds;
using std::chrono::seconds;

struct SpanTimer : Clock::Timer {
    explicit SpanTimer(SourceHandle itsSource) : source(std::move(itsSource)) { }
    SourceHandle source;
};

/// A timer of the clock on the wall.
class WallTimer : public Clock::Timer {
public:
    /// What became of the timer when it spoke up.
    enum class Event : std::uint8_t { none, due, clockSet };

    WallTimer() : m_file(::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK)) { }

    /// False where the process has too many open files.
    explicit operator bool() const { return static_cast<bool>(m_file); }

    /// Once more for `date`, which is after 1970. Setting the clock cancels a timer, and that is told.
    void arm(Date date) const
    {
        const auto whole = floor<seconds>(date.time_since_epoch());
        const auto part = nanoseconds(date.time_since_epoch() - whole);
        const itimerspec when { .it_interval = {}, .it_value = { .tv_sec = whole.count(), .tv_nsec = part.count() } };
        ::timerfd_settime(m_file.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
    }

    Event event() const
    {
        std::uint64_t times = 0;
        if (::read(m_file.get(), &times, sizeof(times)) > 0)
            return Event::due;
        return errno == ECANCELED ? Event::clockSet : Event::none;
    }

    void watch(const EventLoop& loop, std::function<void()> what)
    {
        m_source = loop.whenReadable(m_file.get(), std::move(what));
    }

private:
    FileDescriptor m_file;
    SourceHandle m_source; // goes before its file
};

}

Date DesktopClock::now() const
{
    return orvel::now();
}

Clock::Uptime DesktopClock::uptime() const
{
    return std::chrono::duration_cast<Uptime>(std::chrono::steady_clock::now().time_since_epoch());
}

std::unique_ptr<Clock::Timer> DesktopClock::after(Uptime span, std::function<void()> what)
{
    return std::make_unique<SpanTimer>(m_loop.after(span, std::move(what)));
}

std::unique_ptr<Clock::Timer> DesktopClock::at(Date date, std::function<void()> what)
{
    if (date <= now())
        return after({}, std::move(what));
    auto timer = std::make_unique<WallTimer>();
    if (!*timer)
        return after(date - now(), std::move(what));
    timer->arm(date);
    timer->watch(m_loop, [wall = timer.get(), date, called = std::move(what), isDone = false]() mutable {
        const auto event = wall->event();
        if (isDone || event == WallTimer::Event::none)
            return;
        if (event == WallTimer::Event::clockSet && date > orvel::now())
            return wall->arm(date);
        isDone = true;
        called();
    });
    return timer;
}

std::unique_ptr<Clock::Timer> DesktopClock::whenSet(std::function<void()> what)
{
    auto timer = std::make_unique<WallTimer>();
    if (!*timer)
        return timer;
    timer->arm(latestDate);
    timer->watch(m_loop, [wall = timer.get(), called = std::move(what)] {
        if (wall->event() != WallTimer::Event::clockSet)
            return;
        wall->arm(latestDate);
        called();
    });
    return timer;
}

}
