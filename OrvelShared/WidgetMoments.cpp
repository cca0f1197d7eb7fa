#include "OrvelShared/WidgetMoments.h"

namespace orvel {

WidgetMoments::WidgetMoments(const WidgetSnapshot& snapshot, const Calendar& calendar)
    : m_snapshot(snapshot), m_calendar(calendar)
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
        .state = m_snapshot.state(at),
        .isRunning = m_snapshot.isRunning,
        .blockCount = m_snapshot.blockCount,
        .today = tallies.today,
        .week = tallies.week,
        .breathe = m_snapshot.breathe,
        .focusMinutes = m_snapshot.focusMinutes,
    };
}

const WidgetMoments::Tallies& WidgetMoments::tallies(Date at)
{
    const auto day = m_calendar.day(at);
    if (m_tallies && m_tallies->day == day)
        return *m_tallies;
    const auto start = m_calendar.startOfDay(at);
    Tallies tallies { .day = day, .today = this->day(start), .week = {} };
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
