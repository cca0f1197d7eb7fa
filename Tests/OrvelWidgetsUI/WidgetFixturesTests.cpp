#include "OrvelWidgetsUI/WidgetFixtures.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "OrvelShared/WidgetSnapshotForm.h"

using namespace orvel;

TEST(WidgetFixtures, showEachContentStateAtTheSampleInstantOfAnyZone)
{
    using Content = WidgetContent::State;
    using State = WidgetSnapshot::State;
    for (const auto zone : { "UTC", "Pacific/Kiritimati", "America/St_Johns" }) {
        const Calendar calendar(TimeZone::named(zone).value());
        const auto moment = [&](Content state) { return WidgetFixtures::moment(state, calendar); };
        EXPECT_TRUE(std::holds_alternative<State::Block>(moment(Content::now).state));
        EXPECT_TRUE(std::holds_alternative<State::Next>(moment(Content::next).state));
        EXPECT_TRUE(moment(Content::focus).focus());
        EXPECT_FALSE(moment(Content::paused).isRunning);
        EXPECT_TRUE(std::holds_alternative<State::NothingScheduled>(moment(Content::none).state));
        for (const auto state : allCases<Content>()) {
            EXPECT_EQ(moment(state).date, WidgetFixtures::sampleDate(calendar));
            EXPECT_EQ(moment(state).isRunning, state != Content::paused);
            EXPECT_EQ(moment(state).week.size(), 7u);
            EXPECT_FALSE(moment(state).today.isEmpty());
        }
        EXPECT_EQ(calendar.timeZone().wallTime(WidgetFixtures::sampleDate(calendar)),
            TimeZone::utc().wallTime(WidgetFixtures::sampleDate(Calendar(TimeZone::utc()))));
    }
}

TEST(WidgetFixtures, areSnapshotsThatTheApplicationCouldHaveWritten)
{
    const Calendar calendar(TimeZone::named("Europe/Berlin").value());
    for (const auto scene : allCases<WidgetFixtures::Scene>()) {
        const auto now = WidgetFixtures::sampleDate(calendar) + std::chrono::seconds { 17 };
        const auto snapshot = WidgetFixtures::snapshot(scene, now, calendar);
        EXPECT_TRUE(std::ranges::is_sorted(snapshot.phases, {}, &WidgetSnapshot::Phase::start)) << rawValue(scene);
        EXPECT_GT(snapshot.horizon, now);
        EXPECT_EQ(snapshot.blockCount, static_cast<std::int64_t>(snapshot.blocks.size()));
        EXPECT_EQ(decodeJson<WidgetSnapshot>(encodeJson(snapshot).value()), snapshot);
    }
}
