#include "OrvelPlatform/Base/Clock.h"

#include <utility>

namespace orvel {

Sleep Clock::sleep(Uptime span, std::optional<Cancellation> cancellation)
{
    return Sleep(
        [this, span](std::function<void()> what) { return after(span, std::move(what)); }, std::move(cancellation));
}

Sleep Clock::sleepUntil(Date date, std::optional<Cancellation> cancellation)
{
    return Sleep(
        [this, date](std::function<void()> what) { return at(date, std::move(what)); }, std::move(cancellation));
}

Sleep::Sleep(Starter starter, std::optional<Cancellation> cancellation)
    : m_starter(std::move(starter)), m_cancellation(std::move(cancellation))
{
}

bool Sleep::isCancelledBefore()
{
    if (!m_cancellation || !m_cancellation->isCancelled())
        return false;
    m_end = SleepEnd::cancelled;
    return true;
}

void Sleep::begin(std::coroutine_handle<> waiting)
{
    m_waiting = waiting;
    m_timer = m_starter([this] { end(SleepEnd::due); });
    if (m_cancellation)
        m_watch = m_cancellation->watch([this] { end(SleepEnd::cancelled); });
}

void Sleep::end(SleepEnd how)
{
    m_end = how;
    m_timer = nullptr;
    m_watch = {};
    std::exchange(m_waiting, nullptr).resume(); // which may destroy this
}

}
