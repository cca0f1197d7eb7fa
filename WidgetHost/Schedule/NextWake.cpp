#include "WidgetHost/Schedule/NextWake.h"

#include <utility>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

void NextWake::include(std::optional<Date> other)
{
    date = earlier(date, other);
}

void NextWake::include(std::optional<Clock::Uptime> other)
{
    uptime = earlier(uptime, other);
}

WakeTimer::WakeTimer(Clock& clock, std::function<void()> wake) : m_clock(clock), m_wake(std::move(wake)) { }

void WakeTimer::set(const NextWake& next)
{
    const auto due = first(next);
    if (due == m_due)
        return;
    m_due = due;
    m_timer.reset();
    if (!due)
        return;
    const auto wake = [this] {
        m_due.reset();
        m_wake();
    };
    m_timer = std::visit(Match {
                             [&](Date date) { return m_clock.at(date, wake); },
                             [&](Clock::Uptime uptime) { return m_clock.after(uptime - m_clock.uptime(), wake); },
                         },
        *due);
}

std::optional<WakeTimer::Due> WakeTimer::first(const NextWake& next) const
{
    if (next.date && (!next.uptime || *next.date - m_clock.now() <= *next.uptime - m_clock.uptime()))
        return *next.date;
    if (next.uptime)
        return *next.uptime;
    return std::nullopt;
}

}
