#include <gtest/gtest.h>

#include "OrvelWidgets/FocusNowControlIntent.h"
#include "OrvelWidgets/OpenBreatheIntent.h"
#include "Tests/OrvelWidgets/IntentWorld.h"

using namespace orvel;

using Journal = IntentWorld::Journal;

TEST(IntentsOutsideTheApplication, openLinksAtOnceWhateverIsRegistered)
{
    ASSERT_FALSE(IntentHosting::isAppProcess());
    IntentWorld world;
    IntentHosting::register_(world.host("host"));
    const auto journalOf = [&](const auto& intent) {
        world.journal.clear();
        const auto work = world.begin(intent);
        return world.journal;
    };
    const auto opened = [](std::string url) { return Journal { "open " + url, "done" }; };
    EXPECT_EQ(journalOf(FocusNowControlIntent { .value = true }), opened("orvel://focus"));
    EXPECT_EQ(journalOf(FocusNowControlIntent { .value = false }), opened("orvel://today"));
    EXPECT_EQ(journalOf(OpenBreatheIntent {}), opened("orvel://breathe"));
    world.activationToken = "token-7";
    EXPECT_EQ(journalOf(OpenBreatheIntent { .style = "", .minutes = -4 }),
        opened("orvel://breathe?style=&minutes=-4 with token-7"));
}
