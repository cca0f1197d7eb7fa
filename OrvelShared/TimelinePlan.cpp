#include "OrvelShared/TimelinePlan.h"

#include <algorithm>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

using std::chrono::microseconds;

/// What comes after a date's last whole minute since 1970; never negative.
microseconds pastWholeMinute(Date date)
{
    return date - std::chrono::floor<std::chrono::minutes>(date);
}

/// The first instant at or after `date` that lies whole minutes before (or after) `end`.
Date nextTick(Date date, Date end)
{
    auto wait = pastWholeMinute(end) - pastWholeMinute(date);
    if (wait < microseconds { 0 })
        wait += countdownStep;
    return date + wait;
}

std::optional<Date> countdownEnd(const WidgetSnapshot::State& state)
{
    using State = WidgetSnapshot::State;
    return std::visit(Match {
                          [](const State::Block& block) { return block.running.end; },
                          [](const State::Focus& focus) { return focus.running.end; },
                          [](const State::FocusFilter&) { return std::optional<Date>(); },
                          [](const State::Next&) { return std::optional<Date>(); },
                          [](State::NothingScheduled) { return std::optional<Date>(); },
                          [](State::NoBlocks) { return std::optional<Date>(); },
                      },
        state);
}

/// `from` plus the span, at most `end`. A span that is not above 0 leads nowhere.
Date countdownLimit(Date from, Seconds span, Date end)
{
    if (!(span > Seconds { 0 }))
        return from;
    if (span >= end - from)
        return end;
    return from + std::chrono::floor<microseconds>(span);
}

}

TimelinePlan::TimelinePlan(const WidgetSnapshot& snapshot, Date from, const Calendar& calendar, Seconds countdownSpan)
    : m_snapshot(snapshot)
    , m_calendar(calendar)
    , m_from(from)
    , m_end(std::max(from, snapshot.horizon))
    , m_countdownLimit(countdownLimit(from, countdownSpan, m_end))
{
}

bool TimelinePlan::showsStart(const WidgetSnapshot::Phase& phase) const
{
    return phase.start > m_from && phase.start <= m_end;
}

void TimelinePlan::forEachMidnight(const std::function<bool(Date)>& use) const
{
    auto mark = m_calendar.addingDays(1, m_calendar.startOfDay(m_from));
    for (; mark && *mark <= m_end; mark = m_calendar.addingDays(1, *mark)) {
        // Where clocks are put back over midnight, a late hour comes again and its next midnight has been already.
        if (*mark > m_from && !use(*mark))
            return;
    }
}

std::optional<CountdownTicks> TimelinePlan::countdownTicks(std::size_t index) const
{
    const auto& phase = m_snapshot.phases[index];
    const auto end = countdownEnd(phase.state);
    if (!end)
        return std::nullopt;
    const auto isLast = index + 1 == m_snapshot.phases.size();
    const auto segmentEnd = isLast ? *end : std::min(*end, m_snapshot.phases[index + 1].start);
    const auto segmentStart = std::max(m_from, phase.start);
    const auto stop = std::min(m_countdownLimit, segmentEnd);
    if (segmentStart >= stop)
        return std::nullopt;

    auto first = nextTick(segmentStart, *end);
    if (first == m_from)
        first += countdownStep;
    if (first > stop)
        return std::nullopt;
    const auto steps = (stop - first) / countdownStep;
    return CountdownTicks { .first = first, .last = first + steps * countdownStep, .end = *end };
}

}
