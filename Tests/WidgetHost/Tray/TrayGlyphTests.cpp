#include "WidgetHost/Tray/TrayGlyph.h"

#include <chrono>
#include <gtest/gtest.h>

#include "WidgetHost/Tray/TrayMenu.h"

namespace orvel::tests {

namespace {

using namespace std::chrono_literals;
using ColorScheme = DesktopAppearance::ColorScheme;

constexpr Date start { std::chrono::sys_days { std::chrono::year { 2026 } / 3 / 2 } };

ControlValue showing(
    const char* glyph, std::optional<double> share = {}, std::optional<std::chrono::seconds> length = {})
{
    ControlValue value { .title = "", .value = "", .symbol = "", .glyph = glyph, .glyphValue = share };
    if (length) {
        value.start = start;
        value.end = start + *length;
    }
    return value;
}

TEST(TrayGlyph, followsTheControl)
{
    struct Case {
        std::string_view name;
        std::optional<ControlValue> value;
        MenuBarOrbState state;
        bool isReachable = true;
    };
    const Case cases[] = {
        { "nothing came yet", std::nullopt, MenuBarOrb::Idle {} },
        { "a control without a glyph", ControlValue { .title = "", .value = "", .symbol = "" }, MenuBarOrb::Idle {} },
        { "a state of the future", showing("sleeping", 0.5), MenuBarOrb::Idle {} },
        { "idle", showing("idle"), MenuBarOrb::Idle {} },
        { "a Block runs", showing("active", 1), MenuBarOrb::Active { 1 } },
        { "a Block runs, said in short", showing("active"), MenuBarOrb::Active { 1 } },
        { "something is let through", showing("unlock"), MenuBarOrb::Unlock {} },
        { "the application wants help", showing("fix"), MenuBarOrb::Fix {} },
        { "nobody answers", showing("active", 1), MenuBarOrb::Fix {}, false },
        { "within a minute", showing("focus", 0.21, 10min), MenuBarOrb::Focus { 3.0 / 10 } },
        { "its last second", showing("focus", 1.0 / 600, 10min), MenuBarOrb::Focus { 0.1 } },
        { "shorter than a minute", showing("focus", 0.5, 30s), MenuBarOrb::Focus { 1 } },
        { "its end", showing("focus", 0, 10min), MenuBarOrb::Focus { 0 } },
        { "no time is said", showing("focus", 0.21), MenuBarOrb::Focus { 0.21 } },
        { "an end before its start", showing("focus", 0.21, -10min), MenuBarOrb::Focus { 0.21 } },
        { "a share that is none", showing("focus", 7), MenuBarOrb::Focus { 1 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(trayGlyph(c.value, c.isReachable), c.state) << c.name;
}

TEST(TrayGlyph, stepsAtWholeMinutesExactly)
{
    for (auto length = 1; length <= 90; ++length) {
        for (auto left = 0; left <= length; ++left) {
            const auto share = static_cast<double>(left) / length;
            const auto glyph = trayGlyph(showing("focus", share, std::chrono::minutes { length }), true);
            EXPECT_EQ(glyph, MenuBarOrbState(MenuBarOrb::Focus { share })) << left << " of " << length;
        }
    }
}

TEST(TrayGlyph, isLightOnDarkPanelsAndDarkOnLightOnes)
{
    const auto brightness = [](ColorScheme scheme, bool increasesContrast) {
        const auto color = trayForeground({ .colorScheme = scheme, .increasesContrast = increasesContrast });
        return (color.red + color.green + color.blue) / 3;
    };
    for (const auto increasesContrast : { false, true }) {
        EXPECT_GT(brightness(ColorScheme::dark, increasesContrast), 0.8);
        EXPECT_GT(brightness(ColorScheme::noPreference, increasesContrast), 0.8);
        EXPECT_LT(brightness(ColorScheme::light, increasesContrast), 0.3);
    }
}

TEST(TrayGlyph, isTintedInNetworkOrderWithoutPremultiplying)
{
    const TemplateBitmap bitmap { .side = 2, .alpha = { 0, 255, 128, 1 } };
    const auto pixels = trayPixels(bitmap, { .red = 1, .green = 0.5, .blue = 2, .alpha = 1 });
    EXPECT_EQ(pixels,
        std::string("\x00\xFF\x80\xFF"
                    "\xFF\xFF\x80\xFF"
                    "\x80\xFF\x80\xFF"
                    "\x01\xFF\x80\xFF",
            16));
    EXPECT_EQ(trayPixels(bitmap, { 0, 0, 0, 0.5 }).substr(4, 4), std::string("\x80\0\0\0", 4));
}

TEST(TrayMenuItems, keepTheirNumbersAndTellWhatChanged)
{
    const TrayEntry focus { .id = "focus", .label = "Focus", .isChecked = false };
    const TrayEntry breathe { .id = "breathe", .label = "Breathe now" };
    const TrayEntry quit { .id = "quit", .label = "Quit" };
    const TrayEntry separator {};
    auto focusOn = focus;
    focusOn.isChecked = true;
    auto focusPlain = focus;
    focusPlain.isChecked.reset();
    auto breatheOff = breathe;
    breatheOff.isEnabled = false;

    struct Step {
        std::string_view name;
        std::vector<TrayEntry> entries;
        std::vector<int> numbers;
        bool isLayout;
        std::vector<int> items;
    };
    const Step steps[] = {
        { "at first", { focus, breathe, separator, quit }, { 1, 2, 3, 4 }, true, {} },
        { "the same", { focus, breathe, separator, quit }, { 1, 2, 3, 4 }, false, {} },
        { "other properties", { focusOn, breatheOff, separator, quit }, { 1, 2, 3, 4 }, false, { 1, 2 } },
        { "one goes", { focusOn, separator, quit }, { 1, 3, 4 }, true, {} },
        { "it comes back", { focusOn, breathe, separator, quit }, { 1, 2, 3, 4 }, true, {} },
        { "another order, one more separator", { breathe, separator, focusOn, separator, quit }, { 2, 3, 1, 5, 4 },
            true, {} },
        { "another sort", { breathe, separator, focusPlain, separator, quit }, { 2, 3, 1, 5, 4 }, true, {} },
        { "the last two change places", { breathe, separator, focusPlain, quit, separator }, { 2, 3, 1, 4, 5 }, true,
            {} },
        { "nothing at all", {}, {}, true, {} },
    };
    TrayMenuItems items;
    for (const auto& step : steps) {
        const auto revision = items.revision();
        const auto change = items.set(step.entries);
        std::vector<int> numbers;
        for (const auto& item : items.items())
            numbers.push_back(item.number);
        EXPECT_EQ(numbers, step.numbers) << step.name;
        EXPECT_EQ(change.isLayout, step.isLayout) << step.name;
        EXPECT_EQ(change.items, step.items) << step.name;
        EXPECT_EQ(items.revision(), revision + (step.isLayout ? 1 : 0)) << step.name;
    }
}

}

}
