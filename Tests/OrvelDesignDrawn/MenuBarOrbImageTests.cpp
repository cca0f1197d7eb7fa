#include "OrvelDesign/Drawn/MenuBarOrbImage.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <numeric>

using namespace orvel;
using namespace MenuBarOrbGlyph;

namespace {

/// The covered area in pixels.
double area(const TemplateBitmap& bitmap)
{
    return std::accumulate(bitmap.alpha.begin(), bitmap.alpha.end(), 0.0) / 255;
}

double disc(double diameter)
{
    return std::numbers::pi * diameter * diameter / 4;
}

double ring(double diameter, double width)
{
    return disc(diameter) - disc(diameter - 2 * width);
}

}

TEST(MenuBarOrbImages, coverTheAreasOfTheirMarks)
{
    struct Case {
        std::string_view name;
        MenuBarOrbState state;
        double atScale1, atScale2; // pixels
        double tolerance = 0.25;
    };
    // The marks: a ring 1 pixel wide at scale 1 and 3 at scale 2; dots of 8 and 14, small ones of 4 and 8.
    const double ring1 = ring(16, 1), ring2 = ring(32, 3);
    // A line of half a turn, and the two halves of a dot that end it.
    const double half1 = ring1 / 2 + disc(1), half2 = ring2 / 2 + disc(3);
    // An arc lies on the ring, and their soft edges add up to more than the share of a pixel that both cover.
    constexpr double softEdges = 4.5;
    // A halo at alpha 0.22, and a dot over it that covers it wholly.
    const double full1 = (disc(11) - disc(8)) * 0.22 + disc(8), full2 = (disc(22) - disc(14)) * 0.22 + disc(14);
    const double low = 0.62, lowHalo = low * 0.22;
    const auto empty = [&](double haloSide, double dotSide) {
        return (disc(haloSide) - disc(dotSide)) * lowHalo + disc(dotSide) * (low + lowHalo * (1 - low));
    };
    const Case cases[] = {
        { "idle", MenuBarOrb::Idle {}, 0.7 * ring1 + 0.75 * disc(4), 0.7 * ring2 + 0.75 * disc(8) },
        { "unlock", MenuBarOrb::Unlock {}, 0.55 * ring1 + disc(8), 0.55 * ring2 + disc(14) },
        { "half a Focus", MenuBarOrb::Focus { 0.5 }, 0.3 * ring1 + 0.7 * half1 + disc(8),
            0.3 * ring2 + 0.7 * half2 + disc(14), softEdges / 2 },
        { "a Focus at its end", MenuBarOrb::Focus { 0 }, 0.3 * ring1 + disc(8), 0.3 * ring2 + disc(14) },
        { "a whole Focus", MenuBarOrb::Focus { 1.3 }, ring1 + disc(8), ring2 + disc(14), softEdges },
        { "breathed in", MenuBarOrb::Active { 1 }, 0.55 * ring1 + full1, 0.55 * ring2 + full2 },
        { "breathed out", MenuBarOrb::Active { -1 }, 0.55 * ring1 + empty(8.8, 6.4), 0.55 * ring2 + empty(17.6, 11.2) },
    };
    for (const auto& c : cases) {
        const auto image = MenuBarOrbGlyph::image(c.state);
        EXPECT_NEAR(area(image.bitmaps[0]), c.atScale1, c.tolerance) << c.name;
        EXPECT_NEAR(area(image.bitmaps[1]), c.atScale2, 2 * c.tolerance) << c.name;
    }
}

TEST(MenuBarOrbImages, areSymmetric)
{
    const MenuBarOrbState states[] = { MenuBarOrb::Idle {}, MenuBarOrb::Unlock {}, MenuBarOrb::Active { 0.3 },
        MenuBarOrb::Focus { 0 }, MenuBarOrb::Focus { 1 } };
    for (const auto& state : states) {
        for (const auto& bitmap : MenuBarOrbGlyph::image(state).bitmaps) {
            const int last = bitmap.side - 1;
            for (int y = 0; y <= last; ++y)
                for (int x = 0; x <= last; ++x) {
                    EXPECT_EQ(bitmap.at(x, y), bitmap.at(last - x, y)) << x << ',' << y;
                    EXPECT_EQ(bitmap.at(x, y), bitmap.at(y, x)) << x << ',' << y;
                }
        }
    }
}

TEST(MenuBarOrbImages, haveTheirMarksInPlace)
{
    const auto at = [](const MenuBarOrbState& state, int scale, int x, int y) -> int {
        return bitmap(state, scale)->at(x, y);
    };
    const auto alpha = [](double share) { return static_cast<int>(std::lround(share * 255)); };
    // The ring's top, left and right ends, and the clear pixel outside each.
    for (const auto& [x, y] : { std::pair { 22, 6 }, { 6, 22 }, { 37, 22 } })
        EXPECT_EQ(at(MenuBarOrb::Idle {}, 2, x, y), alpha(0.7)) << x << ',' << y;
    for (const auto& [x, y] : { std::pair { 22, 5 }, { 5, 22 }, { 38, 22 }, { 22, 10 }, { 0, 0 }, { 43, 43 } })
        EXPECT_EQ(at(MenuBarOrb::Idle {}, 2, x, y), 0) << x << ',' << y;

    // A quarter of a Focus runs from the top to the right.
    const MenuBarOrb::Focus quarter { 0.25 };
    EXPECT_EQ(at(quarter, 2, 32, 11), 255);
    EXPECT_EQ(at(quarter, 2, 11, 12), alpha(0.3));
    EXPECT_EQ(at(quarter, 2, 32, 31), alpha(0.3));
    EXPECT_GT(at(quarter, 2, 21, 7), alpha(0.9)); // its round end
    EXPECT_EQ(at(quarter, 2, 18, 7), alpha(0.3));

    // The badge at the top right, and the gap that parts it from the ring.
    for (const int scale : { 1, 2 }) {
        EXPECT_EQ(at(MenuBarOrb::Fix {}, scale, 18 * scale, 4 * scale), 255);
        EXPECT_EQ(at(MenuBarOrb::Fix {}, scale, 18 * scale, 7 * scale - 1), 0);
        EXPECT_NEAR(at(MenuBarOrb::Fix {}, scale, 3 * scale, 11 * scale), alpha(0.55), 3);
        EXPECT_EQ(at(MenuBarOrb::Fix {}, scale, 11 * scale, 11 * scale), 255);
    }
}

TEST(MenuBarOrbImages, areDrawnAtEveryReasonableScale)
{
    EXPECT_FALSE(bitmap(MenuBarOrb::Idle {}, 0));
    EXPECT_FALSE(bitmap(MenuBarOrb::Idle {}, largestScale + 1));
    EXPECT_EQ(bitmap(MenuBarOrb::Idle {}, 3)->side, 66);
    const auto image = MenuBarOrbGlyph::image(MenuBarOrb::Fix {});
    EXPECT_EQ(image.bitmaps[1], bitmap(MenuBarOrb::Fix {}, 2));
    EXPECT_EQ(image.best(1).side, 22);
    EXPECT_EQ(image.best(1.25).side, 44);
    EXPECT_EQ(image.best(3).side, 44);
}
