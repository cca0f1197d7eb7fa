#include <cmath>
#include <gtest/gtest.h>

#include "OrvelPlatform/Base/Bundle.h"
#include "OrvelWidgets/FocusNowControlIntent.h"
#include "OrvelWidgets/OpenBreatheIntent.h"
#include "Tests/OrvelWidgets/IntentWorld.h"

// This program lies in a folder named as an application's, and so is one.

using namespace orvel;
using namespace std::chrono_literals;

using Journal = IntentWorld::Journal;

TEST(TheHost, isWaitedForInStepsUntilItIsRegisteredOrTheTimeIsOver)
{
    ASSERT_TRUE(IntentHosting::isAppProcess());
    struct Case {
        std::string_view name;
        Seconds waitingUpTo;
        std::optional<Clock::Uptime> registered, cancelled;
        Clock::Uptime answered;
        bool isFound;
        int pauses;
    };
    const Case cases[] = {
        { "registered before", 5s, 0ms, {}, 0ms, true, 0 },
        { "registered after 120 ms", 5s, 120ms, {}, 150ms, true, 3 },
        { "never registered", 0.2s, {}, {}, 200ms, false, 4 },
        { "a time between two steps", 0.22s, {}, {}, 250ms, false, 5 },
        { "no time at all", 0s, {}, {}, 0ms, false, 0 },
        { "less than no time", -1s, {}, {}, 0ms, false, 0 },
        { "no number", Seconds { NAN }, {}, {}, 0ms, false, 0 },
        { "without an end", Seconds { INFINITY }, 10s, {}, 10s, true, 200 },
        { "cancelled and registered", 5s, 330ms, 60ms, 360ms, true, 7 },
        { "cancelled and never registered", 0.2s, {}, 60ms, 210ms, false, 4 },
    };
    for (const auto& c : cases) {
        IntentWorld world;
        const Cancellation cancellation;
        const auto host = world.host("host");
        if (c.registered == 0ms)
            IntentHosting::register_(host);
        std::optional<Clock::Uptime> answered;
        std::shared_ptr<OrvelIntentHost> found;
        auto waiting = start(IntentHosting::current(c.waitingUpTo, world.clock, cancellation), [&](auto outcome) {
            answered = world.clock.uptime();
            found = outcome.value();
        });
        auto ours = 0;
        std::vector<std::unique_ptr<Clock::Timer>> timers;
        const auto at = [&](std::optional<Clock::Uptime> time, const std::function<void()>& what) {
            if (!time || *time == 0ms)
                return;
            ++ours;
            timers.push_back(world.clock.after(*time, what));
        };
        at(c.registered, [&] { IntentHosting::register_(host); });
        at(c.cancelled, [&] { cancellation.cancel(); });
        world.clock.advance(20s);
        EXPECT_EQ(answered, c.answered) << c.name;
        EXPECT_EQ(found, c.isFound ? host : nullptr) << c.name;
        EXPECT_EQ(world.clock.calls() - ours, c.pauses) << c.name;
    }
}

TEST(TheHost, isReplacedAndReleased)
{
    IntentWorld world;
    auto first = world.host("first");
    const std::weak_ptr<IntentWorld::Host> watched = first;
    IntentHosting::register_(std::move(first));
    IntentHosting::register_(world.host("second"));
    EXPECT_TRUE(watched.expired());
}

TEST(IntentsInTheApplication, callItsHost)
{
    struct Case {
        std::string_view name;
        std::optional<bool> value; // of the Focus; absent: a breath
        std::optional<std::string> running;
        bool isDeclined;
        Journal journal;
    };
    const Case cases[] = {
        { "a breath", {}, {}, false, { "host: breathe calm absent", "done" } },
        { "on", true, {}, false, { "forward", "host: start", "done" } },
        { "on, while one runs", true, "Work", false, { "forward", "host: start", "done" } },
        { "on, declined", true, {}, true, { "forward", "host: start", "done" } },
        { "off", false, "Work", false, { "forward", "host: end", "done" } },
        { "off, declined", false, "Work", true, { "forward", "host: end", "done" } },
        { "off, without a name", false, "", false, { "forward", "host: end", "done" } },
        { "off with nothing running", false, {}, false, { "done" } },
    };
    for (const auto& c : cases) {
        IntentWorld world;
        const auto host = world.host("host");
        host->running = c.running;
        world.foreground.isDeclined = c.isDeclined;
        IntentHosting::register_(host);
        auto work = c.value ? world.begin(FocusNowControlIntent { .value = *c.value })
                            : world.begin(OpenBreatheIntent { .style = "calm" });
        world.clock.advance(2s);
        EXPECT_EQ(world.journal, c.journal) << c.name;
    }
}

TEST(IntentsInTheApplication, callTheHostThatIsRegisteredWhenTheUserHasAnswered)
{
    for (const auto value : { true, false }) {
        IntentWorld world;
        const auto before = world.host("before");
        before->running = "Work";
        IntentHosting::register_(before);
        auto work = world.begin(FocusNowControlIntent { .value = value });
        IntentHosting::register_(world.host("after"));
        world.clock.advance(2s);
        EXPECT_EQ(world.journal, (Journal { "forward", value ? "after: start" : "after: end", "done" }));

        world.journal.clear();
        IntentHosting::register_(before);
        work = world.begin(FocusNowControlIntent { .value = value });
        IntentHosting::host = nullptr;
        world.clock.advance(2s);
        EXPECT_EQ(world.journal, (Journal { "forward", "done" }));
    }
}

TEST(IntentsInTheApplication, openLinksWhenItHasNoHostWithinFiveSeconds)
{
    IntentWorld world;
    auto work = world.begin(FocusNowControlIntent { .value = true });
    world.clock.advance(4999ms);
    EXPECT_EQ(world.journal, Journal {});
    world.clock.advance(1ms);
    EXPECT_EQ(world.journal, (Journal { "open orvel://focus", "done" }));
}
