#include "OrvelPlatform/Base/Calendar.h"

#include <utility>

namespace orvel {

Calendar::Calendar(TimeZone timeZone) : m_timeZone(std::move(timeZone)) { }

Calendar Calendar::current()
{
    return Calendar(TimeZone::current());
}

const TimeZone& Calendar::timeZone() const
{
    return m_timeZone;
}

std::chrono::local_days Calendar::day(Date date) const
{
    return std::chrono::floor<std::chrono::days>(m_timeZone.wallTime(date));
}

Date Calendar::startOfDay(Date date) const
{
    const auto midnight = m_timeZone.instants(day(date));
    // Clocks that jump over midnight show this day from the jump on.
    return midnight.meeting == TimeZone::Meeting::never ? midnight.change : midnight.earlier;
}

std::optional<Date> Calendar::addingDays(std::int64_t days, Date date) const
{
    constexpr std::int64_t maximumDays = 10'000 * 366;
    if (!isWithinYears1To9999(date) || days > maximumDays || days < -maximumDays)
        return std::nullopt;
    if (days == 0)
        return date;
    const auto sum = m_timeZone.instants(m_timeZone.wallTime(date) + std::chrono::days { days });
    const auto isFirstOfTwo = sum.meeting == TimeZone::Meeting::twice && days > 0;
    const auto result = isFirstOfTwo ? sum.earlier : sum.later;
    return isWithinYears1To9999(result) ? std::optional(result) : std::nullopt;
}

bool Calendar::isDate(Date date, Date inSameDayAs) const
{
    return day(date) == day(inSameDayAs);
}

int Calendar::weekday(Date date) const
{
    return static_cast<int>(std::chrono::weekday(day(date)).c_encoding()) + 1;
}

Date Calendar::date(WallTime wallTime) const
{
    const auto found = m_timeZone.instants(wallTime);
    return found.meeting == TimeZone::Meeting::never ? found.later : found.earlier;
}

}
