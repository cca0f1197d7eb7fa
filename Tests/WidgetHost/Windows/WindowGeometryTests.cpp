#include "WidgetHost/Windows/WindowGeometry.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numbers>

#include "Tests/WidgetHost/Windows/Faces.h"

namespace orvel::tests {

namespace {

constexpr double room = WindowGeometry::roomForShadow;

TEST(WindowGeometries, giveTheCardThePixelsOfItsPicture)
{
    struct Case {
        std::string_view name;
        Size size;
        double scale;
        Size pixels; // of the picture; none: 0
        Size card; // in pixels
        Size window; // without its room
    };
    const Case cases[] = {
        { "a picture made for it", { 170, 170 }, 2, { 340, 340 }, { 340, 340 }, { 170, 170 } },
        { "no picture yet", { 170, 170 }, 3, {}, { 510, 510 }, { 170, 170 } },
        { "part of a point", { 192.1, 192.1 }, 1, { 193, 193 }, { 193, 193 }, { 193, 193 } },
        { "part of a pixel, drawn by one who rounds down", { 192.1, 192.1 }, 2, { 384, 384 }, { 384, 384 },
            { 192, 192 } },
        { "an error of arithmetic is no pixel", { 170 * 1.1, 170 * 1.1 }, 2, {}, { 374, 374 }, { 187, 187 } },
        { "a picture of another scale", { 170, 170 }, 2, { 170, 170 }, { 340, 340 }, { 170, 170 } },
        { "a picture of another widget's shape", { 170, 170 }, 1, { 364, 170 }, { 170, 170 }, { 170, 170 } },
    };
    for (const auto& c : cases) {
        auto shown = face(c.size);
        if (c.pixels.width > 0)
            shown.picture = shared(
                picture(static_cast<std::uint32_t>(c.pixels.width), static_cast<std::uint32_t>(c.pixels.height)));
        const auto geometry = windowGeometry(shown, c.scale, true);
        EXPECT_DOUBLE_EQ(geometry.card.width * c.scale, c.card.width) << c.name;
        EXPECT_DOUBLE_EQ(geometry.card.height * c.scale, c.card.height) << c.name;
        EXPECT_EQ(geometry.window, (Size { c.window.width + 2 * room, c.window.height + 2 * room })) << c.name;
    }
}

TEST(WindowGeometries, leaveNoRoomWhereNothingShinesThrough)
{
    const auto geometry = windowGeometry(face({ 170, 170 }), 1, false);
    EXPECT_EQ(geometry.card, (Rect { 0, 0, 170, 170 }));
    EXPECT_EQ(geometry.window, (Size { 170, 170 }));
    EXPECT_EQ(geometry.radius, 0);
}

TEST(WindowGeometries, growTheirCornersWithTheLetters)
{
    auto large = face({ 340, 340 });
    large.pointScale = 2;
    EXPECT_EQ(windowGeometry(large, 1, true).radius, 2 * windowGeometry(face({ 170, 170 }), 1, true).radius);
}

TEST(Actions, areWhereTheyAreSeen)
{
    auto drawn = picture(170, 170);
    drawn.actions = {
        { "wide", { 10, 100, 100, 40 }, "Wide", {} },
        { "above it", { 20, 110, 20, 20 }, "Above", {} },
    };
    auto shown = face({ 340, 340 }, shared(std::move(drawn)));
    shown.pointScale = 2;
    const auto geometry = windowGeometry(shown, 1, true);
    const auto at = [&](double x, double y) { return actionAt(shown, geometry, { room + x, room + y }); };
    EXPECT_EQ(at(20, 200), 0U) << "its first point";
    EXPECT_EQ(at(219, 279), 0U) << "its last point";
    EXPECT_EQ(at(220, 279), std::nullopt);
    EXPECT_EQ(at(19, 200), std::nullopt);
    EXPECT_EQ(at(50, 230), 1U) << "the later lies above";
    EXPECT_EQ(actionAt(face({ 170, 170 }), geometry, { room, room }), std::nullopt) << "without a picture";
}

TEST(Cards, takeThePointerWithinTheirCornersOnly)
{
    const auto geometry = windowGeometry(face({ 170, 100 }), 1, true);
    const auto rows = rowsOfCard(geometry);
    const auto takes = [&](double x, double y) {
        return std::ranges::any_of(
            rows, [&](const Rect& row) { return x >= row.x && x < row.right() && y >= row.y && y < row.bottom(); });
    };
    const auto& card = geometry.card;
    for (const double x : { card.x, card.right() - 1 }) {
        for (const double y : { card.y, card.bottom() - 1 })
            EXPECT_FALSE(takes(x, y)) << x << ", " << y;
        EXPECT_TRUE(takes(x, card.center().y)) << x;
    }
    const double inCorner = geometry.radius * (1 - 0.7); // just inside the arc at 45 degrees
    EXPECT_TRUE(takes(card.x + inCorner, card.y + inCorner));
    EXPECT_FALSE(takes(card.x + inCorner - 3, card.y + inCorner - 3));
    EXPECT_FALSE(takes(card.x - 1, card.center().y)) << "the shadow's room";
    double area = 0;
    for (const auto& row : rows)
        area += row.width * row.height;
    const double corners = (4 - std::numbers::pi) * geometry.radius * geometry.radius;
    EXPECT_NEAR(area, 170 * 100 - corners, 60) << "no row is missing and none counts twice";
}

}

}
