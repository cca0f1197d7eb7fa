#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OnTheBus.h"
#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "OrvelPlatform/Desktop/IntentServer.h"
#include "OrvelPlatform/Desktop/WidgetCenter.h"

namespace orvel::tests {

namespace {

using namespace std::chrono_literals;
using Kind = RequestFault::Kind;

/// What an application was asked to do.
struct Asked {
    std::string intent;
    IntentParameters parameters;
    IntentPlatform platform;
};

Task<Answer<void>> note(
    std::vector<Asked>* notes, std::string intent, IntentParameters parameters, IntentPlatform platform)
{
    notes->push_back({ intent, std::move(parameters), std::move(platform) });
    if (intent == "throws")
        throw std::runtime_error("on purpose");
    if (intent == "Sing")
        co_return std::unexpected(RequestFault { .kind = Kind::unknownIntent, .sentence = "It cannot sing." });
    co_return Answer<void>();
}

IntentPerformer noting(std::vector<Asked>& notes)
{
    return [&notes](std::string intent, IntentParameters parameters, IntentPlatform platform) {
        return note(&notes, std::move(intent), std::move(parameters), std::move(platform));
    };
}

TEST_F(OnTheBus, intentsGoToTheApplicationWhileItRuns)
{
    std::vector<Asked> notes;
    const IntentParameters parameters { { "style", std::string("calm") }, { "minutes", std::int64_t { 3 } },
        { "value", true } };
    {
        const auto server = serveIntents(loop, noting(notes));
        ASSERT_TRUE(server) << server.error().text();
        EXPECT_FALSE(serveIntents(loop, noting(notes))); // one application only
        EXPECT_TRUE(get(host.perform("FocusNow", parameters, { .activationToken = "token" })));
        ASSERT_EQ(notes.size(), 1U);
        EXPECT_EQ(notes[0].intent, "FocusNow");
        EXPECT_EQ(notes[0].parameters, parameters);
        EXPECT_EQ(notes[0].platform.activationToken, "token");
        EXPECT_EQ(get(host.perform("Sing", {}, {})).error(),
            (RequestFault { .kind = Kind::unknownIntent, .sentence = "It cannot sing." }));
        EXPECT_EQ(get(host.perform("throws", {}, {})).error().kind, Kind::unavailable);
        EXPECT_EQ(get(host.perform("throws", {}, {})).error().kind, Kind::unavailable); // not busy for ever
    }
    EXPECT_TRUE(get(host.perform("FocusNow", {}, { .activationToken = "later" })));
    EXPECT_EQ(notes.size(), 4U);
    EXPECT_THAT(state().value, testing::EndsWith("FocusNowlater;"));
    EXPECT_EQ(log(), ""); // the application was not started for it
}

TEST_F(OnTheBus, anApplicationOfGLibsServesIntentsOnItsOwnConnection)
{
    std::vector<Asked> notes;
    const auto application = BusConnection::shared(loop).value();
    ASSERT_TRUE(application.takeName(BusName::application));
    const auto server = serveIntents(loop, noting(notes), IntentServer::Name::ofTheProcess);
    ASSERT_TRUE(server) << server.error().text();
    EXPECT_TRUE(get(host.perform("FocusNow", {}, {})));
    EXPECT_EQ(notes.size(), 1U);
    EXPECT_TRUE(application.giveUpName(BusName::application));
}

TEST_F(OnTheBus, intentsGoToTheExtensionWhenTheApplicationTakesNone)
{
    ASSERT_TRUE(bus.takeName(BusName::application));
    EXPECT_TRUE(get(host.perform("FocusNow", {}, { .activationToken = "other" })));
    EXPECT_THAT(state().value, testing::EndsWith("FocusNowother;"));
    EXPECT_TRUE(bus.giveUpName(BusName::application));
}

TEST_F(OnTheBus, hostsHearWhatIsToBeReloaded)
{
    std::vector<std::string> heard;
    const auto hear = [&](std::string what) {
        return [&heard, what](const std::vector<std::string>& kinds) {
            auto line = what;
            for (const auto& kind : kinds)
                line += " " + kind;
            heard.push_back(line);
        };
    };
    EventLoop application;
    const auto center = WidgetCenter::connect(application).value();
    {
        const auto listener = WidgetCenterListener::listen(
            loop, { .reloadTimelines = hear("timelines"), .reloadControls = hear("controls") });
        ASSERT_TRUE(listener);
        EXPECT_TRUE(center.reloadTimelines({ "app.orvel.widget.status", "app.orvel.widget.breathe" }));
        EXPECT_TRUE(center.reloadTimelines({}));
        g_dbus_connection_emit_signal(bus.get(), nullptr, BusPath::widgetCenter, BusInterface::widgetCenter,
            "ReloadControls", g_variant_new("(s)", "all"), nullptr);
        bus.settle();
        EXPECT_TRUE(center.reloadControls({ "app.orvel.control.focus" }));
        EXPECT_TRUE(center.reloadTimelines(std::vector<std::string>(1000, "x")));
        turnUntil(loop, [&] { return heard.size() == 4; });
    }
    EXPECT_TRUE(center.reloadTimelines({}));
    turnFor(loop, 20ms);
    EXPECT_EQ(heard,
        (std::vector<std::string> { "timelines app.orvel.widget.status app.orvel.widget.breathe", "timelines",
            "controls app.orvel.control.focus", "timelines" }));
}

TEST(DesktopClock, callsWhatIsDueInOrderAndNothingThatWasGivenUp)
{
    EventLoop loop;
    DesktopClock clock(loop);
    std::string order;
    const auto note = [&](char name) { return [&order, name] { order += name; }; };
    const auto begun = clock.uptime();
    const auto past = clock.at(Date {} - 1h, note('a'));
    const auto soon = clock.after(-1s, note('b'));
    const auto span = clock.after(20ms, note('c'));
    const auto late = clock.at(clock.now() + 40ms, note('d'));
    const auto never = clock.at(latestDate, note('z'));
    const auto set = clock.whenSet(note('s'));
    auto given = clock.after(10ms, note('x'));
    clock.at(clock.now() + 10ms, note('y')).reset();
    EXPECT_EQ(order, "");
    given.reset();
    turnUntil(
        loop, [&] { return order.size() == 4; }, 2s);
    EXPECT_EQ(order, "abcd");
    EXPECT_GE(clock.uptime() - begun, 40ms);
    turnFor(loop, 5ms);
    EXPECT_EQ(order, "abcd");
}

TEST(DesktopClock, callsAllThatAreDueAtOneDateUnlessOneGivesUpAnother)
{
    EventLoop loop;
    DesktopClock clock(loop);
    std::string order;
    const auto date = clock.now() + 20ms;
    std::unique_ptr<Clock::Timer> given, later;
    const auto first = clock.at(date, [&] {
        order += 'a';
        given.reset();
        later = clock.at(clock.now() + 5ms, [&] { order += 'd'; });
    });
    given = clock.at(date, [&] { order += 'x'; });
    const auto second = clock.at(date, [&] { order += 'b'; });
    auto earlier = clock.at(date - 10ms, [&] { order += 'y'; });
    earlier.reset();
    turnUntil(
        loop, [&] { return order.ends_with('d'); }, 5s);
    EXPECT_EQ(order, "abd");
}

TEST(DesktopClock, aTimerMayEndItself)
{
    EventLoop loop;
    DesktopClock clock(loop);
    std::unique_ptr<Clock::Timer> timer;
    int calls = 0;
    const auto again = [&] {
        ++calls;
        timer = nullptr;
        timer = clock.at(clock.now() + 1ms, [&] {
            ++calls;
            timer = nullptr;
        });
    };
    timer = clock.after(1ms, again);
    turnUntil(
        loop, [&] { return calls == 2; }, 2s);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(timer, nullptr);
}

}

}
