#include "OrvelDesign/MenuBarOrb.h"

#include <limits>
#include <numbers>

#include <gtest/gtest.h>

using namespace orvel;
using namespace MenuBarOrbGlyph;
using std::numbers::pi;

namespace {

template <typename Kind>
std::vector<Kind> only(const MenuBarOrbState& state, int scale)
{
    std::vector<Kind> found;
    for (const auto& mark : marks(state, scale))
        if (const auto* one = std::get_if<Kind>(&mark))
            found.push_back(*one);
    return found;
}

}

TEST(MenuBarOrbs, lieOnWholePixels)
{
    struct Case {
        int scale;
        Place centre;
        double side, lineWidth, dot, smallDot;
    };
    const Case cases[] = {
        { 1, { 11, 11 }, 16, 1, 8, 4 },
        { 2, { 22, 22 }, 32, 3, 14, 8 },
        { 3, { 33, 33 }, 48, 4, 22, 12 },
    };
    for (const auto& c : cases) {
        const std::vector<Mark> idle { Ring { c.centre, c.side, c.lineWidth, 0.7 },
            Dot { c.centre, c.smallDot, 0.75 } };
        const std::vector<Mark> unlock { Ring { c.centre, c.side, c.lineWidth, 0.55 }, Dot { c.centre, c.dot, 1 } };
        EXPECT_EQ(marks(MenuBarOrb::Idle {}, c.scale), idle) << c.scale;
        EXPECT_EQ(marks(MenuBarOrb::Unlock {}, c.scale), unlock) << c.scale;
    }
}

TEST(MenuBarOrbs, wipeAGapAroundTheBadge)
{
    const Place badge { 36, 8 };
    const std::vector<Mark> expected {
        Ring { { 22, 22 }, 32, 3, 0.55 },
        Dot { { 22, 22 }, 14, 1 },
        Hole { badge, 12 },
        Dot { badge, 8, 1 },
    };
    EXPECT_EQ(marks(MenuBarOrb::Fix {}, 2), expected);
}

TEST(MenuBarOrbs, sweepWhatRemainsOfAFocus)
{
    struct Case {
        double remaining;
        std::optional<double> sweep;
    };
    const Case cases[] = {
        { 0, std::nullopt },
        { -0.5, std::nullopt },
        { std::numeric_limits<double>::quiet_NaN(), std::nullopt },
        { 0.25, pi / 2 },
        { 1, 2 * pi },
        { 1.3, 2 * pi },
    };
    for (const auto& c : cases) {
        const MenuBarOrbState focus = MenuBarOrb::Focus { c.remaining };
        const auto arcs = only<Arc>(focus, 2);
        ASSERT_EQ(arcs.size(), c.sweep ? 1u : 0u) << c.remaining;
        if (c.sweep) {
            EXPECT_EQ(arcs[0], (Arc { { 22, 22 }, 14.5, 3, -pi / 2, *c.sweep, 1 })) << c.remaining;
        }
        EXPECT_EQ(only<Ring>(focus, 2).at(0).alpha, 0.3);
        EXPECT_EQ(only<Dot>(focus, 2).size(), 1u);
    }
}

TEST(MenuBarOrbs, breatheBetweenTheirLeastAndTheirMost)
{
    const auto least = only<Dot>(MenuBarOrb::Active { -1 }, 1);
    ASSERT_EQ(least.size(), 2u);
    EXPECT_DOUBLE_EQ(least[0].diameter, 8.8);
    EXPECT_DOUBLE_EQ(least[0].alpha, 0.1364);
    EXPECT_DOUBLE_EQ(least[1].diameter, 6.4);
    EXPECT_DOUBLE_EQ(least[1].alpha, 0.62);
    EXPECT_EQ(least, only<Dot>(MenuBarOrb::Active { 0 }, 1));

    const auto most = only<Dot>(MenuBarOrb::Active { 4 }, 1);
    EXPECT_DOUBLE_EQ(most[0].diameter, 11);
    EXPECT_DOUBLE_EQ(most[1].diameter, 8);
    EXPECT_DOUBLE_EQ(most[1].alpha, 1);
}

TEST(MenuBarOrbsDeathTest, haveAScale)
{
    EXPECT_DEATH(marks(MenuBarOrb::Idle {}, 0), "scale");
}
