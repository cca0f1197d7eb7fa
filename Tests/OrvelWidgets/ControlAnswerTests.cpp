#include "OrvelWidgets/ControlAnswer.h"

#include <gmock/gmock.h>

#include "OrvelDesign/Palette.h"
#include "OrvelWidgets/OrvelControls.h"
#include "OrvelWidgets/OrvelProvider.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

using namespace orvel;
using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

using State = WidgetSnapshot::State;

const Calendar utc(TimeZone::utc());
const auto present = dateFromISO8601("2026-03-04T10:48:30Z").value();

WidgetSnapshot::Running running(Date start, std::optional<Date> end)
{
    return {
        .name = "Work",
        .names = { "Work" },
        .look = std::nullopt,
        .start = start,
        .end = end,
        .level = WidgetSnapshot::Level::gentle,
        .listNames = {},
        .unlock = std::nullopt,
    };
}

WidgetSnapshot::Running unlocked(WidgetSnapshot::Running running, Date end)
{
    running.unlock = { .name = "Mail", .end = end };
    return running;
}

/// A snapshot whose plan ended before now.
WidgetSnapshot stale(std::vector<WidgetSnapshot::Phase> phases)
{
    auto snapshot = WidgetFixtures::snapshot(WidgetFixtures::Scene::noBlocks, present, utc);
    snapshot.phases = std::move(phases);
    snapshot.horizon = present - 1h;
    return snapshot;
}

const auto before = present - 10min;

}

TEST(TheFocusControl, saysWhatRunsWhatTheGlyphShowsAndWhenThatChanges)
{
    struct Case {
        std::string_view name;
        std::vector<WidgetSnapshot::Phase> phases;
        bool isRunning;
        std::string_view value;
        std::string_view glyph;
        std::optional<double> glyphValue;
        std::optional<std::chrono::seconds> changes; // after the present
    };
    const State focus(State::Focus { running(before, present + 10min + 20s) });
    const State endless(State::Focus { running(before, std::nullopt) });
    const State block(State::Block { running(before, present + 6h) });
    const State none(State::NothingScheduled {});
    const Case cases[] = {
        { "a Focus", { { before, focus } }, true, "11 min left", "focus", 620.0 / 1220, 20s },
        { "a Focus while paused", { { before, focus }, { present + 3s, none } }, false, "Off · 50 min", "idle", {},
            {} },
        { "a Focus in its last minute", { { before, State::Focus { running(before, present + 5s) } } }, true,
            "1 min left", "focus", 5.0 / 605, 5s },
        { "a Focus that is over", { { before, State::Focus { running(before, present) } } }, true, "Off · 50 min",
            "idle", {}, {} },
        { "a Focus that another state ends", { { before, focus }, { present + 3s, none } }, true, "11 min left",
            "focus", 620.0 / 1220, 3s },
        { "a Focus without an end", { { before, endless } }, true, "Off · 50 min", "active", 1, {} },
        { "a Focus of no length", { { before, State::Focus { running(present + 1h, present + 1h) } } }, true,
            "60 min left", "focus", 0, 60s },
        { "a Block, then a Focus", { { before, block }, { present + 90min, focus } }, true, "Off · 50 min", "active", 1,
            90min },
        { "a Block, whose minutes do not matter", { { before, block } }, true, "Off · 50 min", "active", 1, {} },
        { "a Block that changes far ahead", { { before, block }, { present + 5h, none } }, true, "Off · 50 min",
            "active", 1, 5h },
        { "something let through", { { before, State::Block { unlocked(running(before, {}), present + 77s) } } }, true,
            "Off · 50 min", "unlock", {}, 77s },
        { "let through no longer", { { before, State::Block { unlocked(running(before, {}), present) } } }, true,
            "Off · 50 min", "active", 1, {} },
        { "let through anew",
            { { before, State::Block { unlocked(running(before, {}), present + 9s) } },
                { present + 5s, State::Block { unlocked(running(before, {}), present + 70s) } } },
            true, "Off · 50 min", "unlock", {}, 70s },
        { "a Focus filter", { { before, State::FocusFilter { running(before, {}) } } }, true, "Off · 50 min", "active",
            1, {} },
        { "no phases", {}, true, "Off · 50 min", "idle", {}, {} },
    };
    for (const auto& c : cases) {
        auto snapshot = stale(c.phases);
        snapshot.isRunning = c.isRunning;
        snapshot.focusMinutes = 50;
        const auto value = focusControlValue(snapshot, present, utc, {});
        EXPECT_EQ(value.value, c.value) << c.name;
        EXPECT_EQ(value.glyph, c.glyph) << c.name;
        ASSERT_EQ(value.glyphValue.has_value(), c.glyphValue.has_value()) << c.name;
        EXPECT_NEAR(value.glyphValue.value_or(0), c.glyphValue.value_or(0), 1e-9) << c.name;
        EXPECT_EQ(value.changes, c.changes ? std::optional(present + *c.changes) : std::nullopt) << c.name;
        const auto isOn = value.value.ends_with("left");
        EXPECT_EQ(value.isOn, isOn) << c.name;
        EXPECT_EQ(value.tint.has_value() && value.barText.has_value() && value.end.has_value(), isOn) << c.name;
    }
}

TEST(TheFocusControl, hasTheSpanOfItsFocusAndTheTintOfTheAppearance)
{
    const auto snapshot = stale({ { before, State::Focus { running(before, present + 1h) } } });
    for (const auto isDark : { true, false }) {
        const auto value = focusControlValue(snapshot, present, utc, { .dark = isDark });
        const auto tint = Palette::toggleOn.rgba({ .dark = isDark });
        EXPECT_EQ(value.tint, (ControlValue::Color { tint.red, tint.green, tint.blue, tint.alpha }));
        EXPECT_EQ(value.start, before);
        EXPECT_EQ(value.end, present + 1h);
    }
}

TEST(TheFocusControl, asksForAnotherLookWhereATimelineWouldEnd)
{
    // More changes of Blocks than a timeline has dates, none of which the toggle shows.
    std::vector<WidgetSnapshot::Phase> phases;
    for (auto index = 0; index < 300; ++index)
        phases.push_back({ before + index * 1s, State(State::Block { running(before, std::nullopt) }) });
    for (auto index = 0; index < 300; ++index)
        phases.push_back({ present + (index + 1) * 1s, State(State::Block { running(before, std::nullopt) }) });
    EXPECT_EQ(focusControlValue(stale(phases), present, utc, {}).changes, present + 240s);
}

TEST(Controls, withoutASnapshotShowWhatTheGalleryShows)
{
    EXPECT_EQ(BreatheValue::currentValue(std::nullopt), BreatheValue::previewValue());
    EXPECT_EQ(breatheControlValue(std::nullopt).value, "1 min · Calm");
    EXPECT_EQ(breatheControlValue(std::nullopt).isOn, std::nullopt);
    const auto focus = focusControlValue(std::nullopt, present, utc, {});
    EXPECT_EQ(focus.value, FocusValue::previewValue(present, utc).value);
    EXPECT_EQ(focus.value, "Off · 50 min");
    EXPECT_EQ(focus.changes, std::nullopt);
}

TEST(Controls, showTheirBarTextWhereThereIsLittleRoom)
{
    auto content = FocusValue::previewValue(present, utc);
    EXPECT_EQ(FocusNowControl::toggle(content).valueLabel.text, "Off · 50 min");
    content.barText = "11m";
    EXPECT_EQ(FocusNowControl::toggle(content).valueLabel.text, "11m");
    EXPECT_EQ(BreatheNowControl::button(BreatheValue::previewValue()).action, OpenBreatheIntent {});
}

TEST(Controls, haveTheirSymbolsAsFiles)
{
    const auto timer = focusControlValue(std::nullopt, present, utc, {}).icon;
    const auto breath = breatheControlValue(std::nullopt).icon;
    ASSERT_TRUE(timer && breath);
    EXPECT_NE(timer, breath);
    EXPECT_THAT(*timer, HasSubstr("stroke=\"currentColor\""));
    EXPECT_THAT(*timer, testing::MatchesRegex("<svg [^>]*>(<path( fill=\"currentColor\")? d=\"M[^\"<>]*\"/>)+</svg>"));
}
