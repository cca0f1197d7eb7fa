#include "OrvelPlatform/Base/Calendar.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "SlowCalendar.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

Date at(std::string_view text)
{
    return dateFromISO8601WithFraction(text).value();
}

Calendar in(std::string_view zone)
{
    return Calendar(TimeZone::named(zone).value());
}

std::string text(std::optional<Date> date)
{
    return date ? iso8601WithFraction(*date).value_or("outside the years 1 to 9999") : "absent";
}

}

TEST(Calendars, startDaysWithoutAMidnightAndDaysWithTwo)
{
    struct Case {
        std::string_view name, zone, date, start;
    };
    const Case cases[] = {
        { "midnight skipped", "America/Sao_Paulo", "2018-11-04T20:00:00Z", "2018-11-04T03:00:00Z" },
        { "before that gap", "America/Sao_Paulo", "2018-11-04T02:59:59.999999Z", "2018-11-03T03:00:00Z" },
        { "midnight twice", "America/Havana", "2018-11-04T20:00:00Z", "2018-11-04T04:00:00Z" },
        { "between the two", "America/Havana", "2018-11-04T04:30:00Z", "2018-11-04T04:00:00Z" },
        { "one minute of the new day", "America/St_Johns", "2010-11-07T02:30:30Z", "2010-11-07T02:30:00Z" },
        { "back in the old day", "America/St_Johns", "2010-11-07T02:31:00Z", "2010-11-06T02:30:00Z" },
        { "in the new day for good", "America/St_Johns", "2010-11-07T03:30:00Z", "2010-11-07T02:30:00Z" },
        { "after a day skipped whole", "Pacific/Apia", "2011-12-30T10:00:00Z", "2011-12-30T10:00:00Z" },
        { "before it", "Pacific/Apia", "2011-12-30T09:59:59Z", "2011-12-29T10:00:00Z" },
        { "half an hour back", "Australia/Lord_Howe", "2026-04-05T12:00:00Z", "2026-04-04T13:00:00Z" },
        { "three quarters of an hour", "Asia/Kathmandu", "2026-07-01T18:14:59Z", "2026-06-30T18:15:00Z" },
        { "the earliest day", "Pacific/Kiritimati", "2026-06-30T10:00:00Z", "2026-06-30T10:00:00Z" },
        { "a day of 23 hours", "Europe/Berlin", "2026-03-29T21:59:59Z", "2026-03-28T23:00:00Z" },
        { "a gap from 23:30 on", "America/Toronto", "1919-03-31T16:00:00Z", "1919-03-31T04:30:00Z" },
        { "before 1970", "Europe/Berlin", "1969-12-31T23:30:00.5Z", "1969-12-31T23:00:00Z" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(in(c.zone).startOfDay(at(c.date))), c.start) << c.name;
}

TEST(Calendars, keepTheClockTimeWhenAddingDays)
{
    struct Case {
        std::string_view name, zone, date;
        std::int64_t days;
        std::string_view sum;
    };
    const Case cases[] = {
        { "into a gap", "America/Sao_Paulo", "2018-11-03T03:00:00Z", 1, "2018-11-04T03:00:00Z" },
        { "on from there", "America/Sao_Paulo", "2018-11-04T03:00:00Z", 1, "2018-11-05T03:00:00Z" },
        { "back into a gap", "Europe/Berlin", "2026-03-30T00:30:00Z", -1, "2026-03-29T01:30:00Z" },
        { "into a repeated hour", "America/Havana", "2018-11-03T04:00:00Z", 1, "2018-11-04T04:00:00Z" },
        { "back into it", "America/Havana", "2018-11-05T05:00:00Z", -1, "2018-11-04T05:00:00Z" },
        { "none, in its second hour", "America/Havana", "2018-11-04T05:30:00Z", 0, "2018-11-04T05:30:00Z" },
        { "over a day skipped whole", "Pacific/Apia", "2011-12-29T10:00:00Z", 1, "2011-12-30T10:00:00Z" },
        { "with a fraction", "Europe/Berlin", "2026-03-28T08:00:00.000001Z", 1, "2026-03-29T07:00:00.000001Z" },
        { "half an hour", "Australia/Lord_Howe", "2026-10-02T15:45:00Z", 1, "2026-10-03T15:45:00Z" },
        { "the last day", "UTC", "9999-12-30T23:59:59.999999Z", 1, "9999-12-31T23:59:59.999999Z" },
        { "past the last day", "UTC", "9999-12-31T00:00:00Z", 1, "absent" },
        { "before the first day", "UTC", "0001-01-01T23:00:00Z", -1, "absent" },
        { "very many", "UTC", "2026-01-01T00:00:00Z", std::numeric_limits<std::int64_t>::max(), "absent" },
        { "very many back", "UTC", "2026-01-01T00:00:00Z", std::numeric_limits<std::int64_t>::min(), "absent" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(in(c.zone).addingDays(c.days, at(c.date))), c.sum) << c.name;
    EXPECT_FALSE(in("UTC").addingDays(0, latestDate + 1us));
}

TEST(Calendars, readWallTimesForwardAndFirst)
{
    const auto berlin = in("Europe/Berlin");
    const auto read = [&](std::string_view wallTime) {
        return text(berlin.date(WallTime { at(std::string(wallTime) + 'Z').time_since_epoch() }));
    };
    EXPECT_EQ(read("2026-03-29T02:30:00"), "2026-03-29T01:30:00Z");
    EXPECT_EQ(read("2026-10-25T02:30:00"), "2026-10-25T00:30:00Z");
    EXPECT_EQ(read("2026-07-01T12:00:00.5"), "2026-07-01T10:00:00.500Z");
}

TEST(Calendars, agreeWithTheCLibraryAskedTheSlowWay)
{
    const char* const settings[] = { "America/Sao_Paulo", "America/Havana", "America/St_Johns", "America/Asuncion",
        "Pacific/Apia", "Pacific/Kwajalein", "Pacific/Kiritimati", "Australia/Lord_Howe", "Antarctica/Troll",
        "Africa/Casablanca", "Africa/Cairo", "America/Nuuk", "America/Scoresbysund", "Asia/Gaza", "Asia/Tehran",
        "Asia/Kathmandu", "Europe/Dublin", "CET-1CEST,M3.5.0,M10.5.0/3", "AAA4BBB2:30,J300/0,59/24",
        "XST5XDT,M3.2.0,M11.1.0" };
    std::mt19937 random(20260302);
    const auto between = [&](std::int64_t low, std::int64_t high) {
        return std::uniform_int_distribution(low, high)(random);
    };
    for (const auto* const setting : settings) {
        const SlowCalendar slow(setting);
        const Calendar calendar(TimeZone::forSetting(setting));
        ASSERT_EQ(calendar.timeZone().name(), setting);
        for (auto run = 0; run < 40; ++run) {
            // Half of the days lie near a change of the clocks, which most days are far from.
            const auto days = static_cast<int>(between(-3, 3));
            std::chrono::sys_seconds date { std::chrono::seconds { between(100'000'000, 4'200'000'000) } };
            const auto change = calendar.timeZone().nextChange(date);
            if (change && run % 2 == 0)
                date = std::chrono::floor<std::chrono::seconds>(*change) - std::chrono::days { days }
                    + std::chrono::minutes { between(-150, 150) };
            const auto other = date + std::chrono::minutes { between(-1500, 1500) };
            SCOPED_TRACE(std::string(setting) + " " + text(date) + " " + std::to_string(days));

            ASSERT_EQ(calendar.timeZone().wallTime(date), slow.wallTime(date));
            ASSERT_EQ(calendar.timeZone().abbreviation(date), slow.abbreviation(date));
            ASSERT_EQ(calendar.weekday(date), slow.weekday(date));
            ASSERT_EQ(calendar.isDate(date, other), slow.day(date) == slow.day(other));
            ASSERT_EQ(text(calendar.startOfDay(date)), text(slow.startOfDay(date)));
            ASSERT_EQ(text(calendar.addingDays(days, date)), text(slow.addingDays(days, date)));
        }
    }
}
