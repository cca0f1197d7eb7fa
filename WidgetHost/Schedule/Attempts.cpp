#include "WidgetHost/Schedule/Attempts.h"

#include <algorithm>

namespace orvel {

namespace {

constexpr Clock::Uptime shortestPause = std::chrono::seconds { 1 };
constexpr Clock::Uptime longestPause = std::chrono::minutes { 5 };
constexpr int mostDoublings = 9; // beyond the longest pause

}

Clock::Uptime pauseAfter(int failures)
{
    const auto doublings = std::clamp(failures - 1, 0, mostDoublings);
    return std::min(shortestPause * (1 << doublings), longestPause);
}

void Attempts::begin(const Clock& clock)
{
    m_retry.reset();
    if (!m_owedSince)
        m_owedSince = { clock.uptime(), clock.now() };
}

void Attempts::fail(Clock::Uptime now)
{
    ++m_failures;
    m_retry = now + pauseAfter(m_failures);
}

void Attempts::startAfresh()
{
    m_failures = 0;
    m_retry.reset();
}

std::optional<Date> Attempts::missedSince(Clock::Uptime now) const
{
    if (!m_owedSince || now < m_owedSince->uptime + patience)
        return std::nullopt;
    return m_owedSince->date;
}

std::optional<Clock::Uptime> Attempts::nextChange(Clock::Uptime now) const
{
    // A retry that is due already waits for something else that will come to an end.
    auto next = isDue(now) ? std::nullopt : m_retry;
    if (m_owedSince && !missedSince(now))
        next = std::min(next.value_or(Clock::Uptime::max()), m_owedSince->uptime + patience);
    return next;
}

}
