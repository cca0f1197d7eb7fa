#include "Benchmarks/IcuTimeline.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <set>
#include <stdexcept>
#include <string>

namespace orvelbench {

namespace {

using namespace orvel;
using State = WidgetSnapshot::State;

void check(UErrorCode error)
{
    if (U_FAILURE(error))
        throw std::runtime_error(u_errorName(error));
}

Date plus(Date date, double seconds)
{
    return date + std::chrono::floor<Date::duration>(Seconds { seconds });
}

void addMidnights(std::set<Date>& dates, Date from, Date end, IcuCalendar& calendar)
{
    auto mark = calendar.addingDays(1, calendar.startOfDay(from));
    for (; mark <= end; mark = calendar.addingDays(1, mark))
        dates.insert(mark);
}

std::optional<Date> countdownEnd(const State& state)
{
    if (const auto* block = std::get_if<State::Block>(&state))
        return block->running.end;
    if (const auto* focus = std::get_if<State::Focus>(&state))
        return focus->running.end;
    return std::nullopt;
}

void addCountdown(std::set<Date>& dates, const WidgetSnapshot& snapshot, std::size_t index, Date from, Date limit)
{
    const auto& phase = snapshot.phases[index];
    const auto end = countdownEnd(phase.state);
    if (!end)
        return;
    const auto hasNext = index + 1 < snapshot.phases.size();
    const auto segmentEnd = hasNext ? std::min(*end, snapshot.phases[index + 1].start) : *end;
    const auto segmentStart = std::max(from, phase.start);
    const auto stop = std::min(limit, segmentEnd);
    if (segmentStart >= stop)
        return;
    auto tick = plus(*end, -60 * std::floor(Seconds(*end - segmentStart).count() / 60));
    for (; tick <= stop; tick = plus(tick, 60)) {
        if (tick > from)
            dates.insert(tick);
    }
}

std::vector<Date> timelineDates(
    const WidgetSnapshot& snapshot, Date from, IcuCalendar& calendar, Seconds countdownSpan, std::size_t limit)
{
    std::set<Date> dates { from };
    if (!snapshot.isRunning)
        return { from };
    const auto end = std::max(from, snapshot.horizon);
    for (const auto& phase : snapshot.phases) {
        if (phase.start > from && phase.start <= end)
            dates.insert(phase.start);
    }
    addMidnights(dates, from, end, calendar);
    const auto countdownLimit = std::min(plus(from, countdownSpan.count()), end);
    for (std::size_t index = 0; index < snapshot.phases.size(); ++index)
        addCountdown(dates, snapshot, index, from, countdownLimit);
    const auto count = static_cast<std::ptrdiff_t>(std::min(limit, dates.size()));
    return { dates.begin(), std::next(dates.begin(), count) };
}

WidgetSnapshot::Day day(const WidgetSnapshot& snapshot, Date date, IcuCalendar& calendar)
{
    for (const auto& day : snapshot.days | std::views::reverse) {
        if (calendar.isDate(day.start, date))
            return day;
    }
    return { .start = date, .breaths = 0, .minutesBreathed = 0, .stayedOff = 0 };
}

const State& state(const WidgetSnapshot& snapshot, Date at)
{
    for (const auto& phase : snapshot.phases | std::views::reverse) {
        if (phase.start <= at)
            return phase.state;
    }
    return snapshot.phases.front().state; // the samples all have phases
}

WidgetMoment moment(const WidgetSnapshot& snapshot, Date at, IcuCalendar& calendar)
{
    const auto start = calendar.startOfDay(at);
    std::vector<WidgetSnapshot::Day> week;
    for (auto back = -6; back <= 0; ++back)
        week.push_back(day(snapshot, calendar.addingDays(back, start), calendar));
    return {
        .date = at,
        .state = state(snapshot, at),
        .isRunning = snapshot.isRunning,
        .blockCount = snapshot.blockCount,
        .today = day(snapshot, start, calendar),
        .week = std::move(week),
        .breathe = snapshot.breathe,
        .focusMinutes = snapshot.focusMinutes,
    };
}

}

IcuCalendar::IcuCalendar(std::string_view zone)
{
    auto error = U_ZERO_ERROR;
    const std::string name(zone);
    m_calendar = std::make_unique<icu::GregorianCalendar>(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)), error);
    check(error);
}

Date IcuCalendar::startOfDay(Date date)
{
    set(date);
    m_calendar->set(UCAL_HOUR_OF_DAY, 0);
    m_calendar->set(UCAL_MINUTE, 0);
    m_calendar->set(UCAL_SECOND, 0);
    m_calendar->set(UCAL_MILLISECOND, 0);
    return this->date();
}

Date IcuCalendar::addingDays(int days, Date date)
{
    auto error = U_ZERO_ERROR;
    set(date);
    m_calendar->add(UCAL_DATE, days, error);
    check(error);
    return this->date();
}

bool IcuCalendar::isDate(Date date, Date inSameDayAs)
{
    return day(date) == day(inSameDayAs);
}

void IcuCalendar::set(Date date)
{
    auto error = U_ZERO_ERROR;
    m_calendar->setTime(static_cast<double>(date.time_since_epoch().count()) / 1000, error);
    check(error);
}

Date IcuCalendar::date() const
{
    auto error = U_ZERO_ERROR;
    const auto milliseconds = m_calendar->getTime(error);
    check(error);
    return Date { Date::duration { std::llround(milliseconds * 1000) } };
}

IcuCalendar::DayNumber IcuCalendar::day(Date date)
{
    auto error = U_ZERO_ERROR;
    set(date);
    const DayNumber day { m_calendar->get(UCAL_ERA, error), m_calendar->get(UCAL_YEAR, error),
        m_calendar->get(UCAL_DAY_OF_YEAR, error) };
    check(error);
    return day;
}

std::vector<OrvelEntry> entriesWithIcu(
    const WidgetSnapshot& snapshot, Date now, IcuCalendar& calendar, Seconds countdownSpan, std::size_t limit)
{
    const auto dates = timelineDates(snapshot, now, calendar, countdownSpan, limit);
    std::vector<OrvelEntry> entries;
    entries.reserve(dates.size());
    for (const auto date : dates)
        entries.push_back({ .date = date, .moment = moment(snapshot, date, calendar) });
    return entries;
}

}
