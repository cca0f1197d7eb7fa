#include "OrvelDesign/Drawn/Orb.h"

#include <gtest/gtest.h>

#include "OrvelDesign/Drawn/BloomingOrb.h"
#include "OrvelDesign/Drawn/OrbDisc.h"
#include "OrvelDesign/Drawn/ProgressRing.h"
#include "OrvelPlatform/Views/Frame.h"
#include "Tests/OrvelDesignDrawn/Drawn.h"

using namespace orvel;

namespace {

const Rect place { 0, 0, 300, 300 };

}

// Of a disc of 100 the light lies at 50, 48, its gradient reaches 72.14 far and is seen to 51.94. A pool of 233 reaches
// 164.76 far and is seen to 102.15.
TEST(Orbs, followTheirPose)
{
    EXPECT_EQ(drawn(Orb { 100 }, place, dark()),
        "fill 47.85,47.85 204.3×204.3 ellipse radial 164.76 0 #FAC68C 20% 0.34 #FAC68C 8% 0.62 #FAC68C 0%\n"
        "fill 98.06,96.06 103.88×103.88 ellipse radial 72.14 0 #FFF7EA 0.26 #FEE4BF 0.47 #F8C995 0.6 #F2B07A 62% "
        "0.67 #F2B07A 18% 0.72 #F2B07A 0%\n");
    EXPECT_EQ(drawn(Orb { 100, OrbPose::exhaled }, place),
        "fill 68.28,68.28 163.44×163.44 ellipse radial 131.8 0 #F0AE72 12% 0.34 #F0AE72 5% 0.62 #F0AE72 0%\n"
        "fill 101.18,99.3 97.65×97.65 ellipse radial 67.81 0 #D1C7B8 0.26 #CCAA7F 0.47 #C58F5D 0.6 #BE7E4D 62% "
        "0.67 #BE7E4D 18% 0.72 #BE7E4D 0%\n");
}

TEST(Orbs, standStillAndBrightenUnderReducedMotion)
{
    for (const auto& still :
        { dark().with<ReduceMotionKey>(true), dark().with<OrvelAccessibilityKey>({ .reduceMotion = true }) }) {
        const auto atRestSize = drawn(Orb { 100, { 1, 1.08, 1, 1 } }, place, dark());
        EXPECT_EQ(drawn(Orb { 100, OrbPose::inhaled }, place, still), atRestSize);
    }
}

TEST(Orbs, haveNoPoolWhereNoneMayShow)
{
    const auto disc = drawn(Orb { .size = 100, .showsPool = false }, place);
    EXPECT_EQ(
        disc, drawn(Frame { FrameLength::exactly(100), FrameLength::exactly(100), {}, OrbDisc { false } }, place));
    EXPECT_EQ(drawn(Orb { 100 }, place, Environment().with<ReduceTransparencyKey>(true)), disc);
    EXPECT_EQ(
        drawn(Orb { 100 }, place, Environment().with<OrvelAccessibilityKey>({ .reduceTransparency = true })), disc);
    EXPECT_NE(drawn(Orb { 100 }, place), disc);
}

TEST(OrbColors, staySomeColorAtAnyBrightness)
{
    EXPECT_EQ(OrbColors::palette(true, 2).rim, Color(1, 1, 2 * 0.4784));
    EXPECT_EQ(OrbColors::palette(true, -1).core, Color(0, 0, 0));
}

TEST(BloomingOrbs, bloomOnceAndComeToRest)
{
    using Values = BloomingOrb::Values;
    EXPECT_EQ(Values::at(Seconds(-1), false), Values::rest);
    EXPECT_EQ(Values::at(Seconds(1.6), false), Values::rest);
    EXPECT_DOUBLE_EQ(Values::at(Seconds(0.64), false).brightness, 1.2); // two fifths of the way
    EXPECT_DOUBLE_EQ(Values::at(Seconds(0.01), false).bloomOpacity, 1);

    auto earlier = Values::at(Seconds(0.01), false);
    for (double seconds = 0.02; seconds < 1.6; seconds += 0.01) {
        const auto now = Values::at(Seconds(seconds), false);
        EXPECT_GT(now.bloomScale, earlier.bloomScale) << seconds;
        EXPECT_LT(now.bloomOpacity, earlier.bloomOpacity) << seconds;
        EXPECT_NEAR(now.brightness, earlier.brightness, 0.01) << "a jolt at " << seconds;
        const auto still = Values::at(Seconds(seconds), true);
        EXPECT_EQ(still.bloomScale, 1) << seconds;
        EXPECT_EQ(still.brightness, now.brightness) << seconds;
        earlier = now;
    }
    EXPECT_NEAR(earlier.bloomOpacity, 0, 0.01);
}

TEST(BloomingOrbs, areTheDiscWithALightBehindIt)
{
    const auto disc = drawn(Orb { .size = 100, .showsPool = false }, place);
    EXPECT_EQ(drawn(BloomingOrb { 100, std::nullopt }, place), disc);
    const BloomingOrb blooming { 100, Seconds(0.3) };
    EXPECT_EQ(drawn(blooming, place, Environment().with<ReduceTransparencyKey>(true)),
        drawn(Orb { 100, { 1, BloomingOrb::Values::at(Seconds(0.3), false).brightness, 1, 1 }, false }, place));
    EXPECT_NE(drawn(blooming, place), drawn(blooming, place, Environment().with<ReduceMotionKey>(true)));
}

TEST(BloomTriggers, startABloomAtEveryChange)
{
    BloomTrigger trigger;
    trigger.observe(7, Seconds(100));
    EXPECT_FALSE(trigger.elapsed(Seconds(100))) << "what is seen first is no change";
    trigger.observe(8, Seconds(101));
    trigger.observe(8, Seconds(101.5));
    EXPECT_EQ(trigger.elapsed(Seconds(102)), Seconds(1));
    trigger.observe(7, Seconds(102));
    EXPECT_EQ(trigger.elapsed(Seconds(102.25)), Seconds(0.25)) << "anew, from the beginning";
    EXPECT_FALSE(trigger.elapsed(Seconds(104)));
}

TEST(ProgressRings, runClockwiseFromTheTopWithinTheirDiameter)
{
    const std::string track = "fill 10,0 40×40 ring 4 #262236 12%\n";
    struct Case {
        std::string_view name;
        double progress;
        std::string_view arc;
    };
    const Case cases[] = {
        { "nothing yet", 0, "" },
        { "an early frame", -0.2, "" },
        { "a quarter", 0.25, "stroke 12,2 36×36 arc 0 0.25 width 4 round #8F4E1C\n" },
        { "a late frame", 1.3, "stroke 12,2 36×36 arc 0 1 width 4 round #8F4E1C\n" },
    };
    const auto rightToLeft = Environment().with<LayoutDirectionKey>(LayoutDirection::rightToLeft);
    for (const auto& c : cases) {
        const ProgressRing ring { c.progress, 40, 4 };
        EXPECT_EQ(drawn(ring, { 0, 0, 60, 40 }), track + std::string(c.arc)) << c.name;
        EXPECT_EQ(drawn(ring, { 0, 0, 60, 40 }, rightToLeft), track + std::string(c.arc)) << c.name;
    }
    const Color white { 1, 1, 1 };
    EXPECT_EQ(drawn(ProgressRing { 0.5, 40, 4, { { white.faded(0.2), white } } }, { 0, 0, 40, 40 }, dark()),
        "fill 0,0 40×40 ring 4 #FFFFFF 20%\n"
        "stroke 2,2 36×36 arc 0 0.5 width 4 round #FFFFFF\n");
}
