#include "WidgetHost/Schedule/BusRequests.h"

#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "Tests/OrvelPlatform/Desktop/OnTheBus.h"
#include "WidgetHost/Schedule/WidgetSchedule.h"

namespace orvel::tests {

namespace {

using ScheduleOnTheBus = OnTheBus;

TEST_F(ScheduleOnTheBus, widgetsOutliveTheirExtension)
{
    DesktopClock clock(loop);
    BusRequests requests(host);
    std::map<std::string, int> pictures;
    WidgetSchedule schedule(clock, requests, [&](const std::string& id, const ShownWidget& shown) {
        EXPECT_FALSE(shown.staleSince);
        ASSERT_TRUE(shown.picture);
        EXPECT_EQ(shown.picture->width, 3U);
        ++pictures[id];
    });
    const auto haveGoneOn = [&](int steps) {
        const auto before = pictures["ticks"];
        return turnUntil(loop, [&] { return pictures["ticks"] >= before + steps; });
    };

    const HostEnvironment small { .family = "systemSmall" };
    schedule.setWidgets({ { "ticks", "ticking", small }, { "dies while it draws", "brittle", small } });
    EXPECT_TRUE(haveGoneOn(3));
    EXPECT_TRUE(turnUntil(loop, [&] { return pictures["dies while it draws"] >= 3; }));
    EXPECT_EQ(log(), "died\n");

    ::kill(process(), SIGKILL);
    EXPECT_TRUE(haveGoneOn(12)) << "over a reload, in another process";
    schedule.setWidgets({});
}

}

}
