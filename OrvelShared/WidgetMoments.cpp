#include "OrvelShared/WidgetMoments.h"

#include <algorithm>
#include <ranges>

namespace orvel {

namespace {

/// The phases that hold at some instant, ascending by start. A phase that starts no earlier than one behind it never
/// does; so this is the same for a writer that broke its promise of the order.
std::vector<const WidgetSnapshot::Phase*> steps(const WidgetSnapshot& snapshot)
{
    std::vector<const WidgetSnapshot::Phase*> steps;
    steps.reserve(snapshot.phases.size());
    for (const auto& phase : snapshot.phases | std::views::reverse) {
        if (steps.empty() || phase.start < steps.back()->start)
            steps.push_back(&phase);
    }
    std::ranges::reverse(steps);
    return steps;
}

/// Until when an instant's local date holds for sure: the next midnight by the clock of that instant, or the next
/// change of the clock.
Date endOfDate(Date at, const TimeZone& zone)
{
    const auto time = zone.wallTime(at);
    const auto midnight = at + (std::chrono::floor<std::chrono::days>(time) + std::chrono::days { 1 } - time);
    return std::min(midnight, zone.nextChange(at).value_or(midnight));
}

}

WidgetMoments::WidgetMoments(const WidgetSnapshot& snapshot, const Calendar& calendar)
    : m_snapshot(snapshot), m_calendar(calendar), m_steps(steps(snapshot))
{
    m_days.reserve(snapshot.days.size());
    for (const auto& day : snapshot.days)
        m_days.push_back(calendar.day(day.start));
}

WidgetMoment WidgetMoments::moment(Date at)
{
    const auto& tallies = this->tallies(at);
    return {
        .date = at,
        .state = state(at),
        .isRunning = m_snapshot.isRunning,
        .blockCount = m_snapshot.blockCount,
        .today = tallies.today,
        .week = tallies.week,
        .breathe = m_snapshot.breathe,
        .focusMinutes = m_snapshot.focusMinutes,
    };
}

WidgetSnapshot::State WidgetMoments::state(Date at) const
{
    const auto start = [](const WidgetSnapshot::Phase* step) { return step->start; };
    const auto next = std::ranges::upper_bound(m_steps, at, {}, start);
    return next == m_steps.begin() ? m_snapshot.state(at) : next[-1]->state;
}

const WidgetMoments::Tallies& WidgetMoments::tallies(Date at)
{
    if (m_tallies && at >= m_tallies->from && at < m_tallies->until)
        return *m_tallies;
    const auto start = m_calendar.startOfDay(at);
    Tallies tallies {
        .from = at, .until = endOfDate(at, m_calendar.timeZone()), .today = this->day(start), .week = {}
    };
    tallies.week.reserve(7);
    for (auto back = -6; back <= 0; ++back) {
        if (const auto date = m_calendar.addingDays(back, start))
            tallies.week.push_back(this->day(*date));
    }
    return m_tallies.emplace(std::move(tallies));
}

/// The last of the snapshot's days that is the same as a date's; an empty one dated there when none is.
WidgetSnapshot::Day WidgetMoments::day(Date date) const
{
    const auto day = m_calendar.day(date);
    for (auto index = m_days.size(); index-- > 0;) {
        if (m_days[index] == day)
            return m_snapshot.days[index];
    }
    return { .start = date, .breaths = 0, .minutesBreathed = 0, .stayedOff = 0 };
}

}
