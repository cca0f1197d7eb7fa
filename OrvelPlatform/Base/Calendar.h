#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/TimeZone.h"

namespace orvel {

/// The Gregorian calendar as the people of one time zone live it: days of 23 and 25 hours, days without a midnight,
/// days with two, and days that a place skipped whole.
class Calendar {
public:
    explicit Calendar(TimeZone timeZone);

    /// The user's calendar now, which follows changes of the zone: ask for it once per request.
    static Calendar current();

    const TimeZone& timeZone() const;

    /// The local calendar date of an instant.
    std::chrono::local_days day(Date date) const;

    /// The first instant whose local date is that of `date`: the end of the gap where midnight does not exist, the
    /// first midnight where there are two.
    Date startOfDay(Date date) const;

    /// `date` moved by whole days with the clock time kept. A clock time that does not exist there moves forward by the
    /// gap, and stays moved when the sum is the start of another; one that exists twice is the first going forward and
    /// the second going back. Absent outside the years 1 to 9999.
    std::optional<Date> addingDays(std::int64_t days, Date date) const;

    /// Whether both have the same local calendar date.
    bool isDate(Date date, Date inSameDayAs) const;

    /// 1 for Sunday to 7 for Saturday.
    int weekday(Date date) const;

    /// The instant at which clocks show a wall time; moved forward by the gap where they never do, the first of two.
    Date date(WallTime wallTime) const;

private:
    TimeZone m_timeZone;
};

}
