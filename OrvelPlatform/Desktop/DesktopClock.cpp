#include "OrvelPlatform/Desktop/DesktopClock.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
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
        set({ .tv_sec = whole.count(), .tv_nsec = part.count() });
    }

    void disarm() const { set({}); }

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
    void set(const timespec& date) const
    {
        const itimerspec when { .it_interval = {}, .it_value = date };
        ::timerfd_settime(m_file.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
    }

    FileDescriptor m_file;
    SourceHandle m_source; // goes before its file
};

}

/// Everything that is to come at a date, on one timer: often several things are due at the same one, and to make a
/// timer and to have a loop watch it takes longer than to set one.
class DesktopClock::Dates {
public:
    explicit Dates(const EventLoop& loop)
    {
        if (m_timer)
            m_timer.watch(loop, [this] { wake(); });
    }

    /// False where the process has too many open files.
    explicit operator bool() const { return static_cast<bool>(m_timer); }

    class Entry : public Clock::Timer {
    public:
        Entry(Dates& dates, Date date, std::function<void()> what) : m_dates(dates), m_what(std::move(what))
        {
            m_place = m_dates.m_entries.emplace(date, this);
            m_dates.arm();
        }
        ~Entry() override
        {
            if (!m_what)
                return;
            m_dates.m_entries.erase(m_place);
            m_dates.arm();
        }

        /// Whoever is called may destroy it.
        void call()
        {
            m_dates.m_entries.erase(m_place);
            std::exchange(m_what, nullptr)();
        }

    private:
        Dates& m_dates;
        std::function<void()> m_what; // empty: it came
        std::multimap<Date, Entry*>::iterator m_place;
    };

private:
    void wake()
    {
        if (m_timer.event() == WallTimer::Event::none)
            return;
        // Setting the clock cancelled the timer, and may have made any of them due.
        m_isWaking = true;
        for (const auto now = orvel::now(); !m_entries.empty() && m_entries.begin()->first <= now;)
            m_entries.begin()->second->call();
        m_isWaking = false;
        m_armed.reset();
        arm();
    }

    void arm()
    {
        const auto first = m_entries.empty() ? std::nullopt : std::optional(m_entries.begin()->first);
        if (m_isWaking || std::exchange(m_armed, first) == first)
            return;
        first ? m_timer.arm(*first) : m_timer.disarm();
    }

    WallTimer m_timer;
    std::multimap<Date, Entry*> m_entries;
    std::optional<Date> m_armed;
    bool m_isWaking = false; // it is armed once, when everybody was called
};

DesktopClock::DesktopClock(const EventLoop& loop) : m_loop(loop) { }

DesktopClock::~DesktopClock() = default;

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
    if (!m_dates || !*m_dates)
        m_dates = std::make_unique<Dates>(m_loop);
    if (!*m_dates)
        return after(date - now(), std::move(what));
    return std::make_unique<Dates::Entry>(*m_dates, date, std::move(what));
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
