#include "WidgetHost/Schedule/WidgetSchedule.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "FakeRequests.h"

namespace orvel::tests {

namespace {

using testing::ElementsAre;

TEST(WidgetSchedule, aDayCostsOneWakeUpAndOnePictureForEachChange)
{
    Desk desk;
    desk.extension.makeTimeline = [](Date now) { return ticking(now, 61, 1min); };
    desk.schedule.setWidgets({ widget("one"), widget("two") });
    desk.clock.advance(24h - 1us);
    EXPECT_EQ(desk.extension.timelinesAsked.size(), 2U * 24);
    EXPECT_EQ(desk.clock.calls(), 24 * 60 - 1);
    // At a reload the last entry of the old timeline and the first of the new one are the same.
    EXPECT_EQ(desk.extension.picturesAsked.size(), 2U * 24 * 60);
    EXPECT_EQ(desk.clock.waiting(), 1);
    EXPECT_EQ(desk.link("two"), desk.extension.expected(widget("two").environment));
}

TEST(WidgetSchedule, aLateWakeUpGoesStraightToWhatHolds)
{
    Desk desk;
    desk.extension.makeTimeline = [](Date now) { return ticking(now, 100, 1min); };
    desk.extension.timelineConduct = [&] {
        return FakeRequests::Conduct { .delay = desk.clock.uptime() > 0us ? 1s : 0s };
    };
    desk.schedule.setWidgets({ widget("one") });
    desk.clock.advance(90s);
    desk.sleepThrough(30min);
    EXPECT_EQ(desk.link("one"), linkOf(midnight + 31min, "tock", widget("one").environment));
    EXPECT_EQ(desk.extension.picturesAsked.size(), 3U);
    desk.sleepThrough(-31min);
    EXPECT_EQ(desk.link("one"), linkOf(midnight, "tick", widget("one").environment)) << "also back";
}

TEST(WidgetSchedule, aSignalReachesTheKindsItNames)
{
    struct Case {
        std::string_view name;
        std::vector<std::string> kinds;
        std::size_t requests;
    };
    const Case cases[] = {
        { "none: all of them", {}, 3 },
        { "one kind", { "status" }, 2 },
        { "an unknown one beside it, and a kind named twice", { "nobody", "breathe", "breathe" }, 1 },
        { "unknown ones only", { "nobody", "" }, 0 },
    };
    for (const auto& c : cases) {
        Desk desk;
        desk.extension.makeTimeline = [](Date now) { return ticking(now, 2, 1h); };
        desk.schedule.setWidgets({ widget("one"), widget("two"), widget("three", "breathe") });
        desk.schedule.setWidgets({ widget("three", "breathe"), widget("two"), widget("one") }); // nothing new
        desk.schedule.reload(c.kinds);
        EXPECT_EQ(desk.extension.timelinesAsked.size(), 3 + c.requests) << c.name;
    }
}

TEST(WidgetSchedule, whateverChangesWhileAnAnswerIsUnderWayCostsOneFurtherRequest)
{
    for (const auto fault : { std::optional<Kind>(), std::optional(Kind::unavailable) }) {
        Desk desk;
        desk.extension.makeTimeline = [](Date now) { return ticking(now, 2, 1h); };
        desk.extension.timelineConduct = [&] {
            const auto isFirst = desk.extension.timelinesAsked.size() == 1;
            return FakeRequests::Conduct { .delay = 2s, .fault = isFirst ? fault : std::nullopt };
        };
        auto moved = widget("one");
        desk.schedule.setWidgets({ moved });
        desk.clock.advance(1s);
        desk.schedule.reload({});
        moved.environment.colorScheme = "dark";
        desk.schedule.setWidgets({ moved });
        desk.sleepThrough(1min);
        desk.clock.advance(10min);
        EXPECT_THAT(desk.extension.timelinesAsked, ElementsAre(0s, 2s));
        EXPECT_EQ(desk.link("one"), desk.extension.expected(moved.environment));
    }
}

TEST(WidgetSchedule, whatFailsBacksOffKeepsItsPictureAndSaysSoAfterAMinute)
{
    for (const auto isPicture : { false, true }) {
        Desk desk;
        desk.extension.makeTimeline = [](Date now) { return ticking(now, 3, 30min); };
        desk.schedule.setWidgets({ widget("one") });
        desk.clock.advance(1h - 1us);
        const auto last = desk.link("one");
        auto& asked = isPicture ? desk.extension.picturesAsked : desk.extension.timelinesAsked;
        auto& conduct = isPicture ? desk.extension.pictureConduct : desk.extension.timelineConduct;
        conduct = [] { return FakeRequests::Conduct { .fault = Kind::unavailable }; };
        asked.clear();
        desk.clock.advance(1us);
        desk.clock.advance(60s - 1us);
        EXPECT_FALSE(desk.shown["one"].staleSince);
        desk.clock.advance(1us);
        EXPECT_EQ(desk.shown["one"].staleSince, midnight + 1h);
        desk.clock.advance(28min);
        EXPECT_EQ(asked.size(), 1U + 9 + 4); // after 1, 2, 4 … 256 seconds, then every five minutes
        EXPECT_EQ(asked.back() - *(asked.end() - 2), 5min);
        EXPECT_EQ(desk.link("one") == last, isPicture);
        conduct = [] { return FakeRequests::Conduct {}; };
        desk.schedule.reload({});
        EXPECT_FALSE(desk.shown["one"].staleSince);
        EXPECT_EQ(desk.link("one"), desk.extension.expected(widget("one").environment));
    }
}

TEST(WidgetSchedule, aChangeEndsThePauseAfterFailures)
{
    Desk desk;
    const auto same = ticking(midnight, 2, 24h);
    desk.extension.makeTimeline = [&](Date) { return same; };
    auto dark = widget("one");
    dark.environment.colorScheme = "dark";
    desk.schedule.setWidgets({ widget("one") });
    auto isBroken = true;
    desk.extension.pictureConduct = [&] {
        return FakeRequests::Conduct { .fault = isBroken ? std::optional(Kind::cannotDraw) : std::nullopt };
    };

    desk.schedule.setWidgets({ dark });
    desk.clock.advance(10min);
    EXPECT_TRUE(desk.shown["one"].staleSince);
    desk.schedule.setWidgets({ widget("one") });
    EXPECT_FALSE(desk.shown["one"].staleSince) << "what is wanted again is what is shown";

    desk.schedule.setWidgets({ dark });
    desk.clock.advance(10min);
    isBroken = false;
    desk.schedule.reload({});
    EXPECT_EQ(desk.link("one"), desk.extension.expected(dark.environment));

    desk.extension.timelineConduct = [] { return FakeRequests::Conduct { .fault = Kind::unavailable }; };
    desk.schedule.reload({});
    desk.clock.advance(10min);
    desk.extension.timelinesAsked.clear();
    desk.schedule.reload({});
    desk.clock.advance(3s);
    EXPECT_EQ(desk.extension.timelinesAsked.size(), 3U) << "and the next pauses are short";
}

TEST(WidgetSchedule, anExtensionThatTalksNonsenseIsNotAskedWithoutEnd)
{
    struct Case {
        std::string_view name;
        Clock::Uptime reload;
        std::optional<Kind> fault;
        std::size_t timelines; // within an hour
    };
    const Case cases[] = {
        { "every entry is bad", 10h, Kind::badEntry, 20 },
        { "the reload date is over", -1h, std::nullopt, 21 },
        { "the reload date is now", 0s, std::nullopt, 21 },
    };
    for (const auto& c : cases) {
        Desk desk;
        desk.extension.makeTimeline = [&](Date now) {
            auto timeline = ticking(now, 1, 1min);
            timeline.reload = now + c.reload;
            return timeline;
        };
        desk.extension.pictureConduct = [&] { return FakeRequests::Conduct { .fault = c.fault }; };
        desk.schedule.setWidgets({ widget("one") });
        EXPECT_EQ(desk.extension.timelinesAsked.size(), 2U) << c.name << ": the first time at once";
        desk.clock.advance(1h);
        EXPECT_EQ(desk.extension.timelinesAsked.size(), c.timelines) << c.name;
        EXPECT_LE(desk.clock.calls(), 25) << c.name;
    }
}

TEST(WidgetSchedule, aWidgetMayBeTakenAwayWhenItIsToldOf)
{
    Desk desk;
    desk.extension.makeTimeline = [](Date now) { return ticking(now, 3, 1min); };
    desk.extension.pictureConduct = [] { return FakeRequests::Conduct { .delay = 1s }; };
    desk.whenPicture = [&](const std::string&) { desk.schedule.setWidgets({ widget("two") }); };
    desk.schedule.setWidgets({ widget("one"), widget("two") });
    desk.clock.advance(10s);
    desk.schedule.setWidgets({});
    EXPECT_EQ(desk.extension.outstanding, 0);
    EXPECT_EQ(desk.clock.waiting(), 0);
}

/// Chance, the same every time.
class Dice {
public:
    explicit Dice(unsigned seed) : m_random(seed) { }
    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }
    bool oneIn(int count) { return upTo(count - 1) == 0; }

    /// From a millisecond to `most`, short and long ones alike.
    Clock::Uptime span(Clock::Uptime most)
    {
        const auto part = std::uniform_real_distribution(0.0, std::log(static_cast<double>(most / 1ms)))(m_random);
        return std::chrono::duration_cast<Clock::Uptime>(std::exp(part) * 1ms);
    }

private:
    std::mt19937 m_random;
};

/// A desk at which anything may happen.
class Turmoil : public Desk {
public:
    explicit Turmoil(unsigned seed) : m_dice(seed)
    {
        extension.makeTimeline = [this](Date now) { return anyTimeline(now); };
        extension.timelineConduct = [this] { return anyConduct(); };
        extension.pictureConduct = [this] { return anyConduct(); };
        whenPicture = [this](const std::string& id) {
            EXPECT_EQ(link(id), extension.expected(environment(id))) << "a picture of something else is shown";
        };
        schedule.setWidgets(m_widgets);
    }

    void step()
    {
        const auto cause = m_dice.upTo(9);
        m_causes += cause < 4;
        if (cause == 0)
            schedule.reload(m_dice.oneIn(2) ? std::vector<std::string> {} : std::vector<std::string> { "status" });
        if (cause == 1)
            flip(m_widgets[static_cast<std::size_t>(m_dice.upTo(2))].environment);
        if (cause == 2)
            sleepThrough(m_dice.span(4h));
        if (cause == 3)
            sleepThrough(-m_dice.span(4h));
        if (cause == 4)
            m_faults = m_dice.oneIn(2) ? 100 : 5;
        clock.advance(m_dice.span(20min));
        check();
    }

    void recover()
    {
        m_faults = 0;
        clock.advance(10min);
        while (extension.outstanding > 0)
            clock.advance(1s);
        for (const auto& widget : m_widgets) {
            EXPECT_EQ(link(widget.id), extension.expected(widget.environment)) << "after everything";
            EXPECT_FALSE(shown[widget.id].staleSince) << "after everything";
        }
    }

    void checkCosts() const
    {
        const auto minutes = static_cast<std::size_t>(clock.uptime() / 1min);
        // A cause may have each widget asked anew through a whole row of pauses; entries and reloads are a minute
        // apart.
        EXPECT_LE(extension.timelinesAsked.size(), 3 * (12 * (m_causes + 1) + minutes));
        EXPECT_LE(extension.picturesAsked.size(), 3 * (12 * (m_causes + 1) + 2 * minutes));
        const auto requests = extension.timelinesAsked.size() + extension.picturesAsked.size();
        EXPECT_LE(static_cast<std::size_t>(clock.calls() - extension.naps), 2 * requests);
    }

private:
    HostEnvironment environment(const std::string& id) const
    {
        return std::ranges::find(m_widgets, id, &ScheduledWidget::id)->environment;
    }

    void flip(HostEnvironment& environment)
    {
        environment.colorScheme = environment.colorScheme == "dark" ? "light" : "dark";
        schedule.setWidgets(m_widgets);
    }

    void check() const
    {
        EXPECT_LE(clock.waiting(), 1 + extension.outstanding);
        for (const auto& widget : m_widgets) {
            const auto isExcused =
                extension.outstanding > 0 || !extension.given.contains(widget.id) || extension.isUndrawn.at(widget.id);
            EXPECT_TRUE(isExcused || link(widget.id) == extension.expected(widget.environment));
        }
    }

    ExtensionTimeline anyTimeline(Date now)
    {
        ExtensionTimeline timeline {
            .entries = {}, .moments = { "a" + std::to_string(m_dice.upTo(99)), "b" }, .reload = now
        };
        auto date = now + (m_dice.oneIn(5) ? m_dice.span(1min) : 0s);
        for (auto count = m_dice.upTo(8); count >= 0; --count) {
            timeline.entries.push_back({ date, static_cast<std::uint32_t>(m_dice.upTo(1)) });
            date += m_dice.oneIn(9) ? 0s : 1min + m_dice.span(2h);
        }
        timeline.reload = m_dice.oneIn(6) ? now - m_dice.span(1h) : timeline.entries.back().date + 1min;
        return timeline;
    }

    FakeRequests::Conduct anyConduct()
    {
        constexpr Kind faults[] = { Kind::unavailable, Kind::late, Kind::badEntry, Kind::cannotDraw };
        FakeRequests::Conduct conduct { .delay = m_dice.oneIn(2) ? 0us : m_dice.span(8s) };
        if (m_dice.upTo(99) < m_faults)
            conduct.fault = faults[m_dice.upTo(3)];
        return conduct;
    }

    Dice m_dice;
    std::vector<ScheduledWidget> m_widgets { widget("one"), widget("two"), widget("three", "breathe") };
    int m_faults = 5; // of a hundred
    std::size_t m_causes = 0;
};

TEST(WidgetSchedule, showsWhatHoldsWhateverHappens)
{
    for (auto seed = 0U; seed < 25 && !testing::Test::HasFailure(); ++seed) {
        Turmoil turmoil(seed);
        for (auto step = 0; step < 100; ++step)
            turmoil.step();
        turmoil.recover();
        turmoil.checkCosts();
        EXPECT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

}

}
