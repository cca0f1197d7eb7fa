#include <gtest/gtest.h>
#include <random>

#include "Tests/OrvelWidgets/ExtensionWorld.h"
#include "Tests/Support/LocaleVariables.h"

// The application of these tests has the German table and a French one of a few words.

using namespace orvel;

TEST(Requests, areAnsweredWhollyInTheLanguageThatEachNames)
{
    struct Case {
        std::optional<std::string> language;
        std::string_view title, value, breathe; // of the Focus control, and the title of the other one
    };
    const Case cases[] = {
        { "de_DE.UTF-8", "Jetzt Fokus", "Aus · 50\u00A0min", "Jetzt atmen" },
        { "fr", "Focus maintenant", "Arrêt · 50 min", "Breathe now" },
        { "en_GB:de", "Focus now", "Off · 50 min", "Breathe now" }, { "", "Focus now", "Off · 50 min", "Breathe now" },
        { "nl:fr:de", "Focus maintenant", "Arrêt · 50 min", "Breathe now" },
        { "nl:de-AT", "Jetzt Fokus", "Aus · 50\u00A0min", "Jetzt atmen" },
        { "nl", "Focus now", "Off · 50 min", "Breathe now" },
        { "not a language", "Focus now", "Off · 50 min", "Breathe now" },
        { std::nullopt, "Jetzt Fokus", "Aus · 50\u00A0min", "Jetzt atmen" }, // the process's own
    };
    const LocaleVariables german { { { "LANG", "de_DE.UTF-8" } } };
    ExtensionWorld world;
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> any(0, std::size(cases) - 1);
    for (auto turn = 0; turn < 200; ++turn) {
        const auto& c = cases[any(random)];
        HostEnvironment environment;
        environment.language = c.language;
        const auto focus = world.extension.controlValue(WidgetSnapshot::Kind::focusControl, environment).value();
        const auto breathe = world.extension.controlValue(WidgetSnapshot::Kind::breatheControl, environment).value();
        const auto members = world.extension.members(environment).value();
        const auto name = c.language.value_or("(none)");
        EXPECT_EQ(focus.title, c.title) << name;
        EXPECT_EQ(focus.value, c.value) << name;
        EXPECT_EQ(breathe.title, c.breathe) << name;
        EXPECT_EQ(members.at(2).displayName, c.breathe) << name;
        EXPECT_EQ(members.at(3).displayName, c.title) << name;
    }
}
