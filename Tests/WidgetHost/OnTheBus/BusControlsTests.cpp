#include "WidgetHost/Controls/BusControlRequests.h"

#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "OrvelPlatform/Desktop/IntentServer.h"
#include "OrvelPlatform/Desktop/WidgetCenter.h"
#include "Tests/OrvelPlatform/Desktop/OnTheBus.h"
#include "WidgetHost/Controls/ControlCenter.h"

namespace orvel::tests {

namespace {

using ControlsOnTheBus = OnTheBus;

Task<Answer<void>> note(
    std::vector<std::string>* notes, std::string intent, IntentParameters parameters, IntentPlatform platform)
{
    const auto state = std::get<bool>(parameters.at("value")) ? " on " : " off ";
    notes->push_back(intent + state + platform.activationToken.value_or("-"));
    co_return Answer<void>();
}

TEST_F(ControlsOnTheBus, aUseReachesTheApplicationThatRunsAndTheExtensionOtherwise)
{
    DesktopClock clock(loop);
    BusControlRequests requests(host);
    ControlCenter center(clock, requests, {});
    const auto hears = WidgetCenterListener::listen(
        loop, { .reloadTimelines = {}, .reloadControls = [&](const auto& kinds) { center.reload(kinds); } });
    const auto tells = WidgetCenter::connect(loop).value();
    const auto isSettled = [&] { return !center.controls().at(0).askedFor; };
    center.setEnvironment({});
    ASSERT_TRUE(turnUntil(loop, [&] { return !center.controls().empty() && center.controls()[0].value; }));

    std::vector<std::string> notes;
    {
        const auto application =
            serveIntents(loop, [&](std::string intent, IntentParameters parameters, IntentPlatform platform) {
                return note(&notes, std::move(intent), std::move(parameters), std::move(platform));
            });
        ASSERT_TRUE(application);
        const auto isOn = center.controls()[0].isOn();
        EXPECT_TRUE(center.use("state", "token"));
        EXPECT_NE(center.controls()[0].isOn(), isOn);
        EXPECT_TRUE(turnUntil(loop, [&] { return !notes.empty(); }));
        EXPECT_EQ(notes[0], isOn ? "FocusNow off token" : "FocusNow on token");
        EXPECT_FALSE(isSettled());
        EXPECT_TRUE(tells.reloadControls({ "state" }));
        EXPECT_TRUE(turnUntil(loop, isSettled));
    }
    EXPECT_TRUE(center.use("state", "later"));
    EXPECT_TRUE(turnUntil(loop, isSettled)) << "by itself, when nobody tells";
    EXPECT_EQ(notes.size(), 1U);
    EXPECT_TRUE(center.controls()[0].value->value.ends_with("FocusNowlater;")) << center.controls()[0].value->value;
}

}

}
