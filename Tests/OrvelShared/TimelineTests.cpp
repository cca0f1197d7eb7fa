#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <set>

#include "OrvelShared/TimelineReason.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "Tests/OrvelShared/Samples.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

constexpr Seconds threeHours { 10800 };
constexpr std::int64_t mostEntries = 240;

/// An instant of 2 March 2026, or of a day after it ("+1 09:00:00").
Date at(std::string_view clock)
{
    const auto isLater = clock.starts_with('+');
    const auto days = isLater ? clock[1] - '0' : 0;
    return date("2026-03-02T" + std::string(clock.substr(isLater ? 3 : 0)) + "Z") + std::chrono::days { days };
}

WidgetSnapshot snapshotUntil(Date horizon, std::vector<WidgetSnapshot::Phase> phases)
{
    auto snapshot = emptySnapshot(horizon);
    snapshot.phases = std::move(phases);
    return snapshot;
}

/// The rules read aloud, with a set and without any thought of speed.
std::vector<Date> slowTimelineDates(
    const WidgetSnapshot& snapshot, Date from, const Calendar& calendar, Seconds span, std::size_t limit)
{
    std::set<Date> dates { from };
    if (!snapshot.isRunning)
        return { from };
    const auto end = std::max(from, snapshot.horizon);
    for (const auto& phase : snapshot.phases) {
        if (phase.start > from && phase.start <= end)
            dates.insert(phase.start);
    }
    for (auto mark = calendar.addingDays(1, calendar.startOfDay(from)); mark && *mark <= end;
         mark = calendar.addingDays(1, *mark)) {
        if (*mark > from)
            dates.insert(*mark);
    }
    const auto limitOfCountdown = std::min(from + std::chrono::floor<std::chrono::microseconds>(span), end);
    for (std::size_t index = 0; index < snapshot.phases.size(); ++index) {
        const auto& phase = snapshot.phases[index];
        const auto* block = std::get_if<State::Block>(&phase.state);
        const auto* focus = std::get_if<State::Focus>(&phase.state);
        const auto runEnd = block ? block->running.end : focus ? focus->running.end : std::nullopt;
        if (!runEnd)
            continue;
        const auto hasNext = index + 1 < snapshot.phases.size();
        const auto stop = std::min({ *runEnd, hasNext ? snapshot.phases[index + 1].start : *runEnd, limitOfCountdown });
        const auto start = std::max(from, phase.start);
        if (start >= stop)
            continue;
        for (auto tick = *runEnd - (*runEnd - start) / 1min * 1min; tick <= stop; tick += 1min) {
            if (tick > from)
                dates.insert(tick);
        }
    }
    std::vector<Date> first(dates.begin(), dates.end());
    first.resize(std::min(first.size(), limit));
    return first;
}

/// Snapshots around the hours at which a zone's clocks are set, with phases in and out of order.
class RandomSnapshots {
public:
    explicit RandomSnapshots(std::uint64_t seed) : m_random(seed) { }

    std::int64_t number(std::int64_t from, std::int64_t to)
    {
        return std::uniform_int_distribution(from, to)(m_random);
    }

    Date near(Date date, std::chrono::minutes distance)
    {
        const auto minutes = std::chrono::minutes { number(-distance.count(), distance.count()) };
        const auto isOdd = number(0, 2) == 0;
        return date + minutes + (isOdd ? std::chrono::microseconds { number(0, 59'999'999) } : 0us);
    }

    State state(Date start)
    {
        const auto end = number(0, 5) == 0 ? std::nullopt : std::optional(near(start + 3h, 300min));
        switch (number(0, 4)) {
        case 0:
            return State::Focus { running(start, end) };
        case 1:
            return State::FocusFilter { running(start, end) };
        case 2:
            return State::NothingScheduled {};
        default:
            return State::Block { running(start, end) };
        }
    }

    WidgetSnapshot snapshot(Date around)
    {
        auto snapshot = emptySnapshot(near(around + 24h, 3000min));
        for (auto count = number(0, 9); count > 0; --count) {
            const auto start = near(around, 2000min);
            snapshot.phases.push_back({ .start = start, .state = state(start) });
        }
        if (number(0, 3) > 0)
            std::ranges::sort(snapshot.phases, {}, &WidgetSnapshot::Phase::start);
        return snapshot;
    }

private:
    std::mt19937_64 m_random;
};

}

TEST(TimelineDates, followTheRules)
{
    const auto blockUntil = [](std::string_view start, std::string_view end) {
        return WidgetSnapshot::Phase { at(start), State::Block { running(at(start), at(end)) } };
    };
    const auto focusUntil = [](std::string_view start, std::string_view end) {
        return WidgetSnapshot::Phase { at(start), State::Focus { running(at(start), at(end)) } };
    };
    const auto filterUntil = [](std::string_view start, std::string_view end) {
        return WidgetSnapshot::Phase { at(start), State::FocusFilter { running(at(start), at(end)) } };
    };
    const auto nothing = [](std::string_view start) {
        return WidgetSnapshot::Phase { at(start), State::NothingScheduled {} };
    };
    struct Case {
        std::string_view name, from, horizon;
        std::vector<WidgetSnapshot::Phase> phases;
        std::vector<std::string_view> dates;
        Seconds span = threeHours;
        std::int64_t limit = mostEntries;
    };
    const Case cases[] = {
        { "an end on the minute", "10:00:30", "18:00:00", { focusUntil("10:00:00", "10:05:00") },
            { "10:00:30", "10:01:00", "10:02:00", "10:03:00", "10:04:00", "10:05:00" } },
        { "an end off the minute", "10:00:00", "18:00:00", { blockUntil("09:00:00", "10:02:20") },
            { "10:00:00", "10:00:20", "10:01:20", "10:02:20" } },
        { "an end off the second", "10:00:00", "18:00:00", { blockUntil("09:00:00", "10:01:20.000001") },
            { "10:00:00", "10:00:20.000001", "10:01:20.000001" } },
        { "over at this instant", "10:02:00", "18:00:00", { focusUntil("10:00:00", "10:02:00") }, { "10:02:00" } },
        { "a Focus filter does not count down", "10:00:00", "18:00:00",
            { filterUntil("09:00:00", "10:02:00"), filterUntil("11:00:00", "11:02:00") }, { "10:00:00", "11:00:00" } },
        { "the next phase cuts a countdown short", "10:00:00", "18:00:00",
            { blockUntil("09:00:00", "10:30:00"), nothing("10:02:30") },
            { "10:00:00", "10:01:00", "10:02:00", "10:02:30" } },
        { "a later countdown begins with its phase", "10:00:00", "18:00:00", { blockUntil("11:00:10", "11:02:00") },
            { "10:00:00", "11:00:10", "11:01:00", "11:02:00" } },
        { "the span ends a countdown", "10:00:00", "18:00:00", { blockUntil("09:00:00", "12:00:30") },
            { "10:00:00", "10:00:30", "10:01:30" }, Seconds { 149.9999995 } },
        { "the horizon ends it all", "10:00:00", "10:02:00",
            { blockUntil("09:00:00", "12:00:00"), nothing("11:00:00") }, { "10:00:00", "10:01:00", "10:02:00" } },
        { "a horizon before now", "10:00:00", "09:00:00", { blockUntil("09:00:00", "12:00:00"), nothing("11:00:00") },
            { "10:00:00" } },
        { "midnights up to the horizon", "10:00:00", "+2 00:00:00", {}, { "10:00:00", "+1 00:00:00", "+2 00:00:00" } },
        { "one instant by three rules", "23:58:00", "+1 12:00:00",
            { blockUntil("23:00:00", "+1 00:00:00"), nothing("+1 00:00:00") },
            { "23:58:00", "23:59:00", "+1 00:00:00" } },
        { "two countdowns on one beat and one beside", "10:00:00", "18:00:00",
            { blockUntil("09:00:00", "10:02:00"), blockUntil("10:01:00", "10:03:00"),
                focusUntil("10:02:10", "10:03:10") },
            { "10:00:00", "10:01:00", "10:02:00", "10:02:10", "10:03:10" } },
        { "a span of nothing", "10:00:00", "18:00:00", { blockUntil("09:00:00", "12:00:00") }, { "10:00:00" },
            Seconds { 0 } },
        { "a negative span", "10:00:00", "18:00:00", { blockUntil("09:00:00", "12:00:00") }, { "10:00:00" },
            Seconds { -60 } },
        { "a span that is no number", "10:00:00", "18:00:00", { blockUntil("09:00:00", "12:00:00") }, { "10:00:00" },
            Seconds { std::nan("") } },
        { "an endless span", "10:00:00", "10:02:00", { blockUntil("09:00:00", "12:00:00") },
            { "10:00:00", "10:01:00", "10:02:00" }, Seconds { std::numeric_limits<double>::infinity() } },
        { "a limit", "10:00:00", "+5 00:00:00", { blockUntil("09:00:00", "12:00:00") }, { "10:00:00", "10:01:00" },
            threeHours, 2 },
        { "a limit of one", "10:00:00", "+5 00:00:00", { blockUntil("09:00:00", "12:00:00") }, { "10:00:00" },
            threeHours, 1 },
        { "a limit of none", "10:00:00", "+5 00:00:00", { blockUntil("09:00:00", "12:00:00") }, {}, threeHours, 0 },
    };
    for (const auto& c : cases) {
        const auto snapshot = snapshotUntil(at(c.horizon), c.phases);
        std::vector<Date> expected;
        for (const auto clock : c.dates)
            expected.push_back(at(clock));
        const auto dates = snapshot.timelineDates(at(c.from), Calendar(TimeZone::utc()), c.span, c.limit);
        EXPECT_EQ(texts(dates), texts(expected)) << c.name;
    }
}

TEST(TimelineDates, areThePresentAloneWhileBlockingIsPaused)
{
    auto snapshot =
        snapshotUntil(at("18:00:00"), { { at("09:00:00"), State::Block { running(at("09:00:00"), at("12:00:00")) } } });
    snapshot.isRunning = false;
    EXPECT_EQ(snapshot.timelineDates(at("10:00:00"), Calendar(TimeZone::utc()), threeHours, mostEntries),
        std::vector { at("10:00:00") });
}

TEST(TimelineDates, keepTheHourOfADayWithoutMidnight)
{
    const auto snapshot = emptySnapshot(date("2018-11-06T12:00:00Z"));
    const auto dates =
        snapshot.timelineDates(date("2018-11-03T12:00:00Z"), calendarIn("America/Sao_Paulo"), threeHours, 10);
    EXPECT_EQ(texts(dates),
        (std::vector<std::string> {
            "2018-11-03T12:00:00Z", "2018-11-04T03:00:00Z", "2018-11-05T03:00:00Z", "2018-11-06T03:00:00Z" }));
}

TEST(TimelineDates, agreeWithTheRulesReadAloud)
{
    const std::pair<std::string_view, std::string_view> places[] = {
        { "America/Sao_Paulo", "2018-11-04T03:00:00Z" }, // no midnight
        { "America/Havana", "2018-11-04T05:00:00Z" }, // two midnights
        { "America/St_Johns", "2010-11-07T02:31:00Z" }, // back over midnight
        { "Australia/Lord_Howe", "2026-04-04T15:00:00Z" }, // half an hour
        { "Pacific/Apia", "2011-12-30T10:00:00Z" }, // no day at all
        { "Asia/Kathmandu", "2026-03-02T12:00:00Z" },
        { "Europe/Berlin", "2026-03-29T01:00:00Z" },
        { "UTC", "9999-12-30T12:00:00Z" },
    };
    RandomSnapshots random(20260302);
    for (const auto& [zone, around] : places) {
        const auto calendar = calendarIn(zone);
        for (auto round = 0; round < 60; ++round) {
            auto snapshot = random.snapshot(date(around) - 48h);
            const auto from = random.near(date(around), 1500min);
            const Seconds span { static_cast<double>(random.number(1, 20'000)) };
            const auto limit = random.number(0, 300);
            const auto dates = snapshot.timelineDates(from, calendar, span, limit);
            const auto slow = slowTimelineDates(snapshot, from, calendar, span, static_cast<std::size_t>(limit));
            ASSERT_EQ(texts(dates), texts(slow)) << zone << ", round " << round;
        }
    }
}

TEST(TimelineDates, answerTheLargestQuestions)
{
    const auto calendar = calendarIn("Europe/Berlin");
    const auto farAway = emptySnapshot(latestDate);
    EXPECT_EQ(farAway.timelineDates(at("10:00:00"), calendar, threeHours, mostEntries).size(), 240u);

    // Every second phase is cut short by none and counts down on a beat of its own.
    WidgetSnapshot crowd = emptySnapshot(at("+9 00:00:00"));
    for (auto index = 100'000; index > 0; --index) {
        const auto start = index % 2 == 0 ? at("09:00:00") : at("20:00:00");
        const auto end = at("14:00:00") + std::chrono::milliseconds { index };
        crowd.phases.push_back({ .start = start, .state = State::Block { running(start, end) } });
    }
    const auto dates = crowd.timelineDates(at("10:00:00"), calendar, threeHours, mostEntries);
    ASSERT_EQ(dates.size(), 240u);
    EXPECT_EQ(dates.back(), at("10:00:00.478"));
}

TEST(TimelineDatesDeathTest, refuseANegativeLimit)
{
    const auto snapshot = emptySnapshot(at("12:00:00"));
    EXPECT_DEATH(static_cast<void>(snapshot.timelineDates(at("10:00:00"), Calendar(TimeZone::utc()), threeHours, -1)),
        "fewer than 0");
}

TEST(ReloadDates, areTheLastThatStillLiesAhead)
{
    const auto snapshot = emptySnapshot(at("15:00:00"));
    const auto noon = at("12:00:00");
    EXPECT_EQ(snapshot.reloadDate({ noon, at("13:00:00") }, noon), at("13:00:00"));
    EXPECT_EQ(snapshot.reloadDate({ noon }, noon), at("15:00:00"));
    EXPECT_EQ(snapshot.reloadDate({}, noon), at("15:00:00"));
    EXPECT_EQ(emptySnapshot(noon).reloadDate({}, noon), at("18:00:00"));
}

TEST(TimelineReasons, nameEveryRuleBehindADate)
{
    using Reason = TimelineReason;
    auto snapshot = snapshotUntil(at("+1 12:00:00"),
        { { at("23:00:00"), State::Block { running(at("23:00:00"), at("+1 00:01:00")) } },
            { at("+1 00:00:00"), State::Focus { running(at("+1 00:00:00"), at("+1 00:02:00")) } } });
    const auto calendar = Calendar(TimeZone::utc());
    const auto dates = snapshot.timelineDates(at("23:58:00"), calendar, threeHours, mostEntries);
    const std::vector<std::vector<Reason::Any>> expected {
        { Reason::Now {} },
        { Reason::CountdownMinute { .phase = 0, .minutesLeft = 2 } },
        { Reason::PhaseStart { 1 }, Reason::Midnight {}, Reason::CountdownMinute { .phase = 0, .minutesLeft = 1 },
            Reason::CountdownMinute { .phase = 1, .minutesLeft = 2 } },
        { Reason::CountdownMinute { .phase = 1, .minutesLeft = 1 } },
        { Reason::CountdownMinute { .phase = 1, .minutesLeft = 0 } },
    };
    EXPECT_EQ(timelineReasons(snapshot, dates, at("23:58:00"), calendar, threeHours), expected);
}

TEST(TimelineReasons, existForEveryDate)
{
    RandomSnapshots random(7);
    const auto calendar = calendarIn("America/Havana");
    for (auto round = 0; round < 100; ++round) {
        const auto snapshot = random.snapshot(date("2018-11-03T05:00:00Z"));
        const auto from = random.near(date("2018-11-04T05:00:00Z"), 1500min);
        const auto dates = snapshot.timelineDates(from, calendar, threeHours, mostEntries);
        for (const auto& reasons : timelineReasons(snapshot, dates, from, calendar, threeHours))
            ASSERT_FALSE(reasons.empty()) << "round " << round;
    }
}
