#include "WidgetHost/Windows/Places.h"

#include <gtest/gtest.h>
#include <random>

namespace orvel::tests {

namespace {

const std::vector<Output> two {
    { "DP-1", { 0, 0, 1920, 1080 }, { 0, 30, 1920, 1050 }, false },
    { "HDMI-1", { 1920, -200, 1280, 1024 }, { 1920, -200, 1280, 984 }, true },
};
constexpr Size small { 170, 170 };

TEST(ShownPlaces, areWithinWhatPanelsLeave)
{
    struct Case {
        std::string_view name;
        WidgetPlace place;
        std::size_t output;
        Point corner;
    };
    const Case cases[] = {
        { "as it was put", { "DP-1", 300, 400 }, 0, { 300, 400 } },
        { "under the panel above", { "DP-1", 300, 0 }, 0, { 300, 30 } },
        { "under the panel below", { "HDMI-1", 300, 900 }, 1, { 300, 814 } },
        { "beyond the right edge", { "DP-1", 5000, 400 }, 0, { 1750, 400 } },
        { "before the left edge", { "HDMI-1", -5000, -5000 }, 1, { 0, 0 } },
        { "an output that is away: the primary", { "DP-7", 300, 400 }, 1, { 300, 400 } },
    };
    for (const auto& c : cases) {
        const auto shown = shownPlace(c.place, small, two);
        ASSERT_TRUE(shown) << c.name;
        EXPECT_EQ(*shown, (PlacedCard { c.output, { c.corner, small } })) << c.name;
    }
    EXPECT_EQ(shownPlace({ "DP-1", 0, 0 }, small, {}), std::nullopt);
    const auto tooLarge = shownPlace({ "DP-1", 10, 10 }, { 3000, 3000 }, two);
    EXPECT_EQ(tooLarge->card.origin(), (Point { 0, 30 })) << "its beginning is to be seen";
}

TEST(FreePlaces, areClearOfEachOtherAndOfTheEdges)
{
    const Size sizes[] = { { 170, 170 }, { 364, 170 }, { 364, 382 }, { 192.1, 192.1 } };
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        std::vector<PlacedCard> taken;
        if (round % 2 == 1)
            taken.push_back({ 1, { 333.0 + round, 222, 364, 382 } });
        const auto isClear = [&](const Rect& card) {
            const auto area = Rect { 0, 0, 1280, 984 }.insetBy(placeGap);
            if (card.x < area.x || card.y < area.y || card.right() > area.right() || card.bottom() > area.bottom())
                return false;
            return std::ranges::none_of(taken, [&](const PlacedCard& other) {
                const auto grown = other.card.insetBy(-placeGap);
                return card.x < grown.right() && grown.x < card.right() && card.y < grown.bottom()
                    && grown.y < card.bottom();
            });
        };
        const auto hasRoom = [&](Size size) {
            for (double x = 0; x < 1280; x += 4) {
                for (double y = 0; y < 984; y += 4) {
                    if (isClear({ { x, y }, size }))
                        return true;
                }
            }
            return false;
        };
        for (int count = 0; count < 6; ++count) {
            const auto size = sizes[random() % std::size(sizes)];
            const auto place = freePlace(size, taken, two);
            ASSERT_TRUE(place);
            EXPECT_EQ(place->output, 1U) << "the primary";
            EXPECT_EQ(isClear(place->card), hasRoom(size)) << place->card.x << ", " << place->card.y;
            taken.push_back(*place);
        }
    }
}

TEST(FreePlaces, goDownThenToTheNextColumn)
{
    std::vector<PlacedCard> taken;
    const Point corners[] = { { 24, 24 }, { 24, 218 }, { 24, 412 }, { 24, 606 }, { 218, 24 } };
    for (const auto corner : corners) {
        const auto place = freePlace(small, taken, two);
        EXPECT_EQ(place->card.origin(), corner);
        taken.push_back(*place);
    }
    taken.push_back({ 0, { 218, 218, 170, 170 } });
    EXPECT_EQ(freePlace(small, taken, two)->card.origin(), (Point { 218, 218 }))
        << "other outputs' cards do not matter";
}

TEST(FreePlaces, areFoundOnAFullDesktopToo)
{
    std::vector<PlacedCard> taken { { 1, { 0, 0, 1280, 984 } } };
    const auto first = freePlace(small, taken, two);
    taken.push_back(*first);
    const auto second = freePlace(small, taken, two);
    EXPECT_NE(first->card, second->card) << "none hides another wholly";
    EXPECT_LE(second->card.bottom(), 984);
    EXPECT_EQ(freePlace(small, {}, {}), std::nullopt);
}

TEST(DroppedPlaces, areOnTheOutputUnderTheCard)
{
    struct Case {
        std::string_view name;
        PlacedCard dropped;
        PlacedCard settled;
    };
    const auto card = [](double x, double y) { return Rect { x, y, small.width, small.height }; };
    const Case cases[] = {
        { "where it was", { 0, card(500, 500) }, { 0, card(500, 500) } },
        { "mostly on the next output", { 0, card(1850, 300) }, { 1, card(0, 500) } },
        { "a little on the next output", { 0, card(1800, 300) }, { 0, card(1750, 300) } },
        { "back from it", { 1, card(-400, 600) }, { 0, card(1520, 400) } },
        { "beyond all outputs", { 1, card(9000, 9000) }, { 1, card(1110, 814) } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(droppedPlace(c.dropped, two), c.settled) << c.name;
    EXPECT_EQ(droppedPlace({ 2, card(0, 0) }, two), std::nullopt) << "from an output that went meanwhile";
}

TEST(KeptPlaces, areShownWhereTheyWereKept)
{
    const PlacedCard placed { 1, { { 300, 400 }, small } };
    const auto kept = keptPlace(placed, two);
    EXPECT_EQ(kept, (WidgetPlace { "HDMI-1", 300, 400 }));
    EXPECT_EQ(shownPlace(kept, small, two), placed);
}

}

}
