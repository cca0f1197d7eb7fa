#include "OrvelWidgetsUI/WidgetContent.h"

#include <gtest/gtest.h>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelWidgetsUI/ControlContent.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

using State = WidgetSnapshot::State;
using Level = WidgetSnapshot::Level;

const Calendar berlin(TimeZone::named("Europe/Berlin").value());
const auto british = Locale::named("en-GB").value();

/// Wednesday 4 March 2026, 10:48 in Berlin.
const auto noonIsAhead = dateFromISO8601("2026-03-04T09:48:00Z").value();

WidgetSnapshot::Running running(Date start, std::optional<Date> end)
{
    return { .name = "Work",
        .names = { "Morning", "Deep work" },
        .look = std::nullopt,
        .start = start,
        .end = end,
        .level = Level::firm,
        .listNames = { "Social", "Chat" },
        .unlock = std::nullopt };
}

WidgetMoment momentWith(State state, bool isRunning = true)
{
    auto moment = WidgetFixtures::moment(WidgetContent::State::none, berlin);
    moment.date = noonIsAhead;
    moment.state = std::move(state);
    moment.isRunning = isRunning;
    return moment;
}

WidgetContent contentOf(const WidgetMoment& moment)
{
    return WidgetContent::status(moment, british, berlin);
}

/// What follows from a moment's state, in a form that fits on a line of a table.
struct Lines {
    WidgetContent::State state;
    std::optional<std::string> kicker;
    std::string smallTitle, smallDetail, title, detail, symbol, tone;
    std::optional<double> progress;
    bool showsRing;
    OrvelLink link;
    bool operator==(const Lines&) const = default;
};

Lines linesOf(const WidgetContent& content)
{
    return { content.state, content.kicker, content.smallTitle, content.smallDetail, content.title, content.detail,
        content.symbol, content.tone, content.progress, content.showsRing, content.link };
}

WidgetSnapshot::Day day(std::int64_t stayedOff)
{
    return { .start = noonIsAhead, .breaths = 0, .minutesBreathed = 0, .stayedOff = stayedOff };
}

}

TEST(WidgetContent, hasTheLinesOfEachState)
{
    const auto start = noonIsAhead - 48min;
    const auto end = noonIsAhead + 72min;
    auto block = running(start, end);
    auto openBlock = block;
    openBlock.look = { .color = "sage", .symbol = "book" };
    openBlock.unlock = { .name = "50%@ “Chat” 🌙", .end = noonIsAhead + 15min };
    auto listless = block;
    listless.listNames.clear();
    const WidgetSnapshot::Upcoming upcoming { .name = "Evening",
        .look = std::nullopt,
        .start = noonIsAhead + 22h + 12min,
        .end = noonIsAhead + 23h + 42min,
        .level = Level::ultraHard };
    using Content = WidgetContent::State;
    struct Case {
        std::string_view name;
        WidgetMoment moment;
        Lines lines;
    };
    const OrvelLink today = OrvelLink::Today {};
    const Case cases[] = {
        { "Block", momentWith(State::Block { block }),
            { Content::now, "Now", "Morning · Deep work", "until 12:00", "Morning · Deep work",
                "Until 12:00 · 1\u00A0h\u00A012\u00A0m left", "shield", "lavender", 0.6, false, today } },
        { "Block with a look and an unlock", momentWith(State::Block { openBlock }),
            { Content::now, "Now", "Morning · Deep work", "until 12:00", "Morning · Deep work",
                "50%@ “Chat” 🌙 open until 11:03", "book", "sage", 0.6, false, today } },
        { "Block without an end", momentWith(State::Block { running(start, std::nullopt) }),
            { Content::now, "Now", "Morning · Deep work", "until 10:48", "Morning · Deep work",
                "Until 10:48 · under\u00A0a\u00A0minute left", "shield", "lavender", 0, false, today } },
        { "Focus", momentWith(State::Focus { block }),
            { Content::focus, "Focus", "72 min left", "ends 12:00", "72 min left", "Ends at 12:00 · Social, Chat",
                "timer", "lavender", 0.6, true, today } },
        { "Focus without Lists, 61 seconds left", momentWith(State::Focus { [&] {
             auto short_ = listless;
             short_.end = noonIsAhead + 61s;
             short_.start = noonIsAhead - 61s;
             return short_;
         }() }),
            { Content::focus, "Focus", "2 min left", "ends 10:49", "2 min left", "Ends at 10:49", "timer", "lavender",
                0.5, true, today } },
        { "Focus that is over", momentWith(State::Focus { running(end, start) }),
            { Content::focus, "Focus", "0 min left", "ends 10:00", "0 min left", "Ends at 10:00 · Social, Chat",
                "timer", "lavender", 0, true, today } },
        { "Focus that is yet to begin", momentWith(State::Focus { running(noonIsAhead + 1h, noonIsAhead + 2h) }),
            { Content::focus, "Focus", "120 min left", "ends 12:48", "120 min left", "Ends at 12:48 · Social, Chat",
                "timer", "lavender", 1, true, today } },
        { "Focus filter", momentWith(State::FocusFilter { block }),
            { Content::now, "Now", "Work", "Social and Chat quiet", "Work", "Social and Chat quiet · Firm", "moon",
                "lavender", std::nullopt, false, today } },
        { "next, tomorrow", momentWith(State::Next { upcoming }),
            { Content::next, "Next", "Evening", "Tomorrow 09:00 · Ultra Hard", "Evening",
                "Tomorrow 09:00 – 10:30 · Ultra Hard", "moon", "lavender", std::nullopt, false, today } },
        { "nothing scheduled", momentWith(State::NothingScheduled {}),
            { Content::none, std::nullopt, "No Blocks this week", "Breathe now still works", "No Blocks this week",
                "Your Blocks are off this week. Breathe now still works.", "moon", "lavender", std::nullopt, false,
                today } },
        { "no Blocks", momentWith(State::NoBlocks {}),
            { Content::none, std::nullopt, "No Blocks yet", "Set one up in Orvel", "No Blocks yet",
                "Open Orvel to set one up.", "shield", "lavender", std::nullopt, false, OrvelLink::Main {} } },
        { "paused", momentWith(State::Focus { block }, false),
            { Content::paused, "Paused", "Blocking is paused", "Breathe now still works", "Blocking is paused",
                "Your 3 Blocks are saved.", "pause", "lavender", std::nullopt, false, today } },
    };
    for (const auto& c : cases) {
        EXPECT_EQ(linesOf(contentOf(c.moment)), c.lines) << c.name << ": " << contentOf(c.moment).detail;
        EXPECT_EQ(contentOf(c.moment).showsMediumBreathe(), !c.lines.progress.has_value()) << c.name;
    }
    auto without = momentWith(State::NoBlocks {}, false);
    without.blockCount = 0;
    EXPECT_EQ(contentOf(without).detail, "Open Orvel to block again.");
}

TEST(WidgetContent, namesTheDayOfAStart)
{
    const auto detailOf = [](Date start) {
        return contentOf(momentWith(State::Next { { .name = "x",
                             .look = WidgetSnapshot::Look { .color = "unheard-of", .symbol = "" },
                             .start = start,
                             .end = start + 1h,
                             .level = Level::gentle } }))
            .smallDetail;
    };
    EXPECT_EQ(detailOf(noonIsAhead - 10h), "00:48 · Gentle");
    EXPECT_EQ(detailOf(noonIsAhead + 13h), "23:48 · Gentle");
    EXPECT_EQ(detailOf(noonIsAhead + 14h), "Tomorrow 00:48 · Gentle");
    EXPECT_EQ(detailOf(noonIsAhead - 11h), "Tue 23:48 · Gentle");
    EXPECT_EQ(detailOf(noonIsAhead + 48h), "Fri 10:48 · Gentle");
}

TEST(WidgetContent, countsTodayInFiguresAndInASentence)
{
    auto moment = momentWith(State::NothingScheduled {});
    moment.today = day(0);
    EXPECT_EQ(contentOf(moment).sentence,
        "Orvel. No Blocks this week, Your Blocks are off this week. Breathe now still works.. Nothing counted yet "
        "today.");
    moment = momentWith(State::Focus { running(noonIsAhead, noonIsAhead + 1h) });
    moment.today = day(2);
    const auto content = contentOf(moment);
    EXPECT_EQ(content.sentence,
        "Orvel. Focus: 60 min left, Ends at 11:48 · Social, Chat. "
        "Today: 0 breaths, 0 minutes breathed, stayed off 2 times.");
    const std::vector<WidgetContent::Number> figures { { "—", "breaths" }, { "—", "min breathed" },
        { "2", "stayed off" } };
    EXPECT_EQ(content.numbers, figures);
    moment.today.breaths = -12'000;
    EXPECT_EQ(contentOf(moment).numbers.front().value, "-12000");
}

TEST(WidgetContent, drawsTheWeekAgainstItsBestDay)
{
    struct Case {
        std::vector<std::int64_t> counts;
        std::vector<double> heights;
    };
    const Case cases[] = {
        { { 0, 1, 0, 1, 0, 0, 1 }, { 0, 1, 0, 1, 0, 0, 1 } },
        { { 2, 4, 0 }, { 0.5, 1, 0 } },
        { { 0 }, { 0 } },
        { {}, {} },
    };
    for (const auto& c : cases) {
        auto moment = momentWith(State::NoBlocks {});
        moment.week.clear();
        for (const auto count : c.counts)
            moment.week.push_back(day(count));
        std::vector<double> heights;
        for (const auto& bar : contentOf(moment).week) {
            heights.push_back(bar.height);
            EXPECT_EQ(bar.label, "W");
            EXPECT_EQ(bar.isToday, heights.size() == c.counts.size());
        }
        EXPECT_EQ(heights, c.heights);
    }
    const auto week = contentOf(WidgetFixtures::moment(WidgetContent::State::now, berlin)).week;
    std::string labels;
    for (const auto& bar : week)
        labels += bar.label;
    EXPECT_EQ(labels, "TFSSMTW");
}

TEST(WidgetContent, ofABreathKeepsItsStyleInTheLink)
{
    const auto content = WidgetContent::breathe({ .style = "Reset", .minutes = 5 });
    const Lines expected { WidgetContent::State::breathe, std::nullopt, "Breathe now", "5 min · Calm", "Breathe now",
        "5 min · Calm", "circle.circle", "lavender", std::nullopt, false,
        OrvelLink::Breathe { .style = "Reset", .minutes = 5 } };
    EXPECT_EQ(linesOf(content), expected);
    EXPECT_TRUE(content.numbers.empty());
    EXPECT_TRUE(content.week.empty());
    EXPECT_EQ(content.breatheMinutes, 5);
    EXPECT_EQ(content.sentence, "Orvel, Breathe now, 5 minute. Opens a breath.");
    EXPECT_EQ(WidgetContent::breathe({ .style = "ground", .minutes = 1 }).detail, "1 min · Ground");
}

TEST(WidgetContent, isWhollyInTheLanguageOfARequest)
{
    const auto german = Locale::named("de_AT.UTF-8").value();
    const auto moment = momentWith(State::Next { { .name = "ערב 100%",
        .look = std::nullopt,
        .start = noonIsAhead + 24h,
        .end = noonIsAhead + 25h,
        .level = Level::firm } });
    const auto content = Copy::inLanguage(german, [&] { return WidgetContent::status(moment, german, berlin); });
    EXPECT_EQ(content.title, "ערב 100%");
    EXPECT_EQ(content.detail, "Morgen 10:48 – 11:48 · Streng");
    EXPECT_EQ(content.week.back().label, "M");
    EXPECT_EQ(contentOf(moment).detail, "Tomorrow 10:48 – 11:48 · Firm");
}

TEST(ControlContent, ofFocusIsOnWhileItsEndIsAhead)
{
    struct Case {
        std::string_view name;
        WidgetMoment moment;
        bool isOn;
    };
    const auto ahead = [](auto left) { return State::Focus { running(noonIsAhead - 1h, noonIsAhead + left) }; };
    const Case cases[] = {
        { "runs", momentWith(ahead(59500ms)), true },
        { "over at this instant", momentWith(ahead(0s)), false },
        { "paused", momentWith(ahead(1h), false), false },
        { "without an end", momentWith(State::Focus { running(noonIsAhead, std::nullopt) }), false },
        { "a Block", momentWith(State::Block { running(noonIsAhead, noonIsAhead + 1h) }), false },
    };
    const ControlContent on { .kind = ControlContent::Kind::focus,
        .title = "Focus now",
        .value = "1 min left",
        .symbol = "timer",
        .isOn = true,
        .barText = "1m",
        .spokenState = "on, 1 minutes left" };
    const ControlContent off { .kind = ControlContent::Kind::focus,
        .title = "Focus now",
        .value = "Off · 50 min",
        .symbol = "timer",
        .isOn = false,
        .barText = std::nullopt,
        .spokenState = "off" };
    for (const auto& c : cases)
        EXPECT_EQ(ControlContent::focus(c.moment), c.isOn ? on : off) << c.name;
}

TEST(ControlContent, ofABreathIsAButton)
{
    const ControlContent expected { .kind = ControlContent::Kind::breathe,
        .title = "Breathe now",
        .value = "3 min · Reset",
        .symbol = "circle.circle",
        .isOn = false,
        .barText = std::nullopt,
        .spokenState = std::nullopt };
    EXPECT_EQ(ControlContent::breathe({ .style = "reset", .minutes = 3 }), expected);
}
