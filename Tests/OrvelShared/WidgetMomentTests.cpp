#include "OrvelShared/WidgetMoment.h"

#include <gtest/gtest.h>

#include "OrvelShared/WidgetMoments.h"
#include "Tests/OrvelShared/Samples.h"

using namespace orvel;

namespace {

const auto utc = Calendar(TimeZone::utc());

WidgetSnapshot::Day day(Date start, std::int64_t stayedOff)
{
    return { .start = start, .breaths = 0, .minutesBreathed = 0, .stayedOff = stayedOff };
}

std::vector<std::string> starts(const std::vector<WidgetSnapshot::Day>& days)
{
    std::vector<Date> dates;
    for (const auto& day : days)
        dates.push_back(day.start);
    return texts(dates);
}

}

TEST(StateAtAnInstant, isThatOfTheLastPhaseThatHasStarted)
{
    auto snapshot = emptySnapshot(date("2026-03-02T13:00:00Z"));
    EXPECT_EQ(snapshot.state(date("2026-03-02T09:00:00Z")), State(State::NoBlocks {}));

    const State block = State::Block { running(date("2026-03-02T09:00:00Z"), std::nullopt) };
    const State focus = State::Focus { running(date("2026-03-02T09:00:00Z"), std::nullopt) };
    const State nothing = State::NothingScheduled {};
    snapshot.phases = { { date("2026-03-02T09:00:00Z"), block }, { date("2026-03-02T12:00:00Z"), nothing },
        { date("2026-03-02T11:00:00Z"), focus }, { date("2026-03-02T14:00:00Z"), focus },
        { date("2026-03-02T14:00:00Z"), block } };
    const std::pair<std::string_view, State> cases[] = {
        { "2026-03-02T08:00:00Z", block }, // stretched back
        { "2026-03-02T09:00:00Z", block }, { "2026-03-02T10:59:59.999999Z", block }, { "2026-03-02T11:00:00Z", focus },
        { "2026-03-02T12:00:00Z", focus }, // out of order: the later place counts
        { "2026-03-02T14:00:00Z", block }, // beyond the horizon, and the later of two equal starts
    };
    for (const auto& [at, state] : cases) {
        EXPECT_EQ(snapshot.state(date(at)), state) << at;
        EXPECT_EQ(snapshot.moment(date(at), utc).state, state) << at;
    }
}

TEST(Moments, haveTheSevenDaysThatEndToday)
{
    auto snapshot = emptySnapshot(date("2026-03-10T00:00:00Z"));
    snapshot.days = { day(date("2026-03-02T07:00:00Z"), 1), day(date("2026-03-03T00:00:00Z"), 2),
        day(date("2026-03-02T00:00:00Z"), 3) };
    const auto moment = snapshot.moment(date("2026-03-04T00:30:00Z"), utc);
    EXPECT_EQ(starts(moment.week),
        (std::vector<std::string> { "2026-02-26T00:00:00Z", "2026-02-27T00:00:00Z", "2026-02-28T00:00:00Z",
            "2026-03-01T00:00:00Z", "2026-03-02T00:00:00Z", "2026-03-03T00:00:00Z", "2026-03-04T00:00:00Z" }));
    EXPECT_EQ(moment.week[4].stayedOff, 3); // of a day that stands twice, the later one
    EXPECT_EQ(moment.week[5].stayedOff, 2);
    EXPECT_EQ(moment.today, day(date("2026-03-04T00:00:00Z"), 0));
    EXPECT_EQ(moment.week.back(), moment.today);
    EXPECT_EQ(moment.state, State(State::NoBlocks {}));
    EXPECT_EQ(moment.focusMinutes, 25);
}

TEST(Moments, followTheDaysOfTheZone)
{
    struct Case {
        std::string_view name, zone, at;
        std::vector<std::string> week;
    };
    const Case cases[] = {
        { "a day that begins at 01:00", "America/Sao_Paulo", "2018-11-05T12:00:00Z",
            { "2018-10-30T03:00:00Z", "2018-10-31T03:00:00Z", "2018-11-01T03:00:00Z", "2018-11-02T03:00:00Z",
                "2018-11-03T03:00:00Z", "2018-11-04T03:00:00Z", "2018-11-05T02:00:00Z" } },
        { "a day with two midnights, from within", "America/Havana", "2018-11-04T06:00:00Z",
            { "2018-10-29T04:00:00Z", "2018-10-30T04:00:00Z", "2018-10-31T04:00:00Z", "2018-11-01T04:00:00Z",
                "2018-11-02T04:00:00Z", "2018-11-03T04:00:00Z", "2018-11-04T04:00:00Z" } },
        { "a day that never was", "Pacific/Apia", "2012-01-01T12:00:00Z",
            { "2011-12-27T10:00:00Z", "2011-12-28T10:00:00Z", "2011-12-29T10:00:00Z", "2011-12-30T10:00:00Z",
                "2011-12-30T10:00:00Z", "2011-12-31T10:00:00Z", "2012-01-01T10:00:00Z" } },
        { "the first days of the calendar", "UTC", "0001-01-03T12:00:00Z",
            { "0001-01-01T00:00:00Z", "0001-01-02T00:00:00Z", "0001-01-03T00:00:00Z" } },
    };
    for (const auto& c : cases) {
        const auto snapshot = emptySnapshot(date("2026-03-10T00:00:00Z"));
        EXPECT_EQ(starts(snapshot.moment(date(c.at), calendarIn(c.zone)).week), c.week) << c.name;
    }
}

TEST(Moments, areTheSameOneByOneAndInARow)
{
    struct Case {
        std::string_view name, zone, start;
        std::chrono::minutes step;
    };
    const Case cases[] = {
        { "backwards over days of 24 and 25 hours", "America/Havana", "2018-11-10T00:00:00Z",
            std::chrono::hours { -5 } },
        { "back into yesterday a minute after midnight", "America/St_Johns", "2010-11-07T02:20:00Z",
            std::chrono::minutes { 1 } },
    };
    for (const auto& c : cases) {
        auto snapshot = emptySnapshot(date("2018-11-10T00:00:00Z"));
        const auto start = date(c.start);
        for (auto hours = -24 * 9; hours < 24; hours += 7)
            snapshot.days.push_back(day(start + std::chrono::hours { hours }, hours));
        const auto calendar = calendarIn(c.zone);
        WidgetMoments moments(snapshot, calendar);
        for (auto index = 0; index < 80; ++index) {
            const auto at = start + index * c.step;
            EXPECT_EQ(moments.moment(at), snapshot.moment(at, calendar)) << c.name << ", " << text(at);
        }
    }
}

TEST(FocusOfAMoment, isOneThatRunsAndHasItsEndAhead)
{
    const auto at = date("2026-03-02T10:00:00Z");
    const auto withEnd = [&](std::optional<Date> end) { return running(at - std::chrono::hours { 1 }, end); };
    const auto ahead = withEnd(at + std::chrono::microseconds { 1 });
    struct Case {
        std::string_view name;
        State state;
        bool isRunning;
        bool hasFocus;
    };
    const Case cases[] = {
        { "ahead", State::Focus { ahead }, true, true },
        { "paused", State::Focus { ahead }, false, false },
        { "over at this instant", State::Focus { withEnd(at) }, true, false },
        { "without an end", State::Focus { withEnd(std::nullopt) }, true, false },
        { "a Block", State::Block { ahead }, true, false },
        { "a Focus filter", State::FocusFilter { ahead }, true, false },
    };
    for (const auto& c : cases) {
        auto snapshot = emptySnapshot(at);
        snapshot.isRunning = c.isRunning;
        snapshot.phases = { { .start = at, .state = c.state } };
        const auto focus = snapshot.moment(at, utc).focus();
        EXPECT_EQ(focus, c.hasFocus ? std::optional(ahead) : std::nullopt) << c.name;
    }
}
