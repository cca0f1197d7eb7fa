#include "OrvelWidgets/OrvelProvider.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "OrvelWidgetsUI/WidgetFixtures.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

const auto present = dateFromISO8601("2026-03-04T10:48:30Z").value();

/// A provider whose clock moves on with each look at it, and what it looked at.
struct World {
    std::optional<WidgetSnapshot> snapshot;
    int looksAtTheClock = 0;
    int looksAtTheCalendar = 0;
    int looksAtTheFile = 0;

    OrvelProvider provider()
    {
        return OrvelProvider({ .now = [this] { return present + looksAtTheClock++ * 1h; },
            .calendar =
                [this] {
                    ++looksAtTheCalendar;
                    return calendar();
                },
            .snapshot =
                [this] {
                    ++looksAtTheFile;
                    return snapshot;
                } });
    }

    static Calendar calendar() { return Calendar(TimeZone::named("Europe/Berlin").value()); }
};

const OrvelProvider::Context inGallery { .isPreview = true };
const OrvelProvider::Context onDesktop { .isPreview = false };

WidgetSnapshot focusSnapshot()
{
    return WidgetFixtures::snapshot(WidgetFixtures::Scene::focus, present, World::calendar());
}

}

TEST(Placeholders, areSamplesAndNeverReadTheFile)
{
    World world { .snapshot = focusSnapshot() };
    const auto entry = world.provider().placeholder(onDesktop);
    EXPECT_EQ(entry.moment, WidgetFixtures::moment(WidgetContent::State::now, World::calendar()));
    EXPECT_EQ(entry.date, entry.moment.date);
    EXPECT_EQ(world.looksAtTheFile, 0);
}

TEST(Snapshots, showThePresentMoment)
{
    World world { .snapshot = focusSnapshot() };
    const auto entry = world.provider().getSnapshot(inGallery);
    EXPECT_EQ(entry.date, present);
    EXPECT_EQ(entry.moment, world.snapshot->moment(present, World::calendar()));
    EXPECT_EQ(world.looksAtTheClock, 1);
}

TEST(Snapshots, withoutAFileAreSamplesInTheGalleryOnly)
{
    World world;
    EXPECT_EQ(world.provider().getSnapshot(inGallery), world.provider().placeholder(inGallery));
    const auto entry = world.provider().getSnapshot(onDesktop);
    EXPECT_EQ(entry.date, present);
    EXPECT_EQ(entry.moment, fallbackMoment(present, World::calendar()));
}

TEST(Timelines, withoutAFileSayThatThereAreNoBlocksForAnHour)
{
    World world;
    const auto timeline = world.provider().getTimeline(inGallery);
    ASSERT_EQ(timeline.entries.size(), 1u);
    const auto& moment = timeline.entries.front().moment;
    EXPECT_EQ(timeline.entries.front().date, present);
    EXPECT_EQ(moment.date, present);
    EXPECT_EQ(moment.state, WidgetSnapshot::State(WidgetSnapshot::State::NoBlocks {}));
    EXPECT_TRUE(moment.isRunning);
    EXPECT_EQ(moment.today.start, dateFromISO8601("2026-03-04T00:00:00+01:00"));
    EXPECT_TRUE(moment.today.isEmpty());
    EXPECT_EQ(moment.week, std::vector { moment.today });
    EXPECT_EQ(moment.breathe, (WidgetSnapshot::Breath { .style = "calm", .minutes = 1 }));
    EXPECT_EQ(moment.focusMinutes, 50);
    EXPECT_EQ(timeline.reload, present + 3600s);
    EXPECT_EQ(world.looksAtTheClock, 1);
}

TEST(Timelines, haveAnEntryForEachDateAndLookAtTheWorldOnce)
{
    World world { .snapshot = focusSnapshot() };
    const auto timeline = world.provider().getTimeline(onDesktop);
    EXPECT_EQ(world.looksAtTheClock, 1);
    EXPECT_EQ(world.looksAtTheCalendar, 1);
    EXPECT_EQ(world.looksAtTheFile, 1);

    const auto dates = world.snapshot->timelineDates(present, World::calendar(), Seconds { 10800 }, 240);
    ASSERT_EQ(timeline.entries.size(), dates.size());
    for (std::size_t index = 0; index < dates.size(); ++index) {
        EXPECT_EQ(timeline.entries[index].date, dates[index]);
        EXPECT_EQ(timeline.entries[index].moment, world.snapshot->moment(dates[index], World::calendar()));
    }
    EXPECT_EQ(timeline.reload, dates.back());

    world.snapshot->isRunning = false;
    EXPECT_EQ(world.provider().getTimeline(onDesktop).reload, world.snapshot->horizon);
}
