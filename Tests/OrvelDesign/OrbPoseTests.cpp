#include "OrvelDesign/OrbPose.h"

#include <limits>

#include <gtest/gtest.h>

#include "OrvelDesign/OrvelMotion.h"

using namespace orvel;

TEST(OrbPoses, meetExactlyWherePhasesMeet)
{
    struct Case {
        BreathMotion motion;
        OrbPose start, end;
    };
    const Case cases[] = {
        { BreathMotion::inhale, OrbPose::exhaled, OrbPose::inhaled },
        { BreathMotion::exhale, OrbPose::inhaled, OrbPose::exhaled },
        { BreathMotion::firstInhale, OrbPose::exhaled, OrbPose::firstInhale },
        { BreathMotion::topUp, OrbPose::firstInhale, OrbPose::inhaled },
    };
    for (const auto& c : cases)
        for (const auto& [progress, pose] : { std::pair(0.0, c.start), { -0.2, c.start }, { 1.0, c.end },
                 { 1.7, c.end }, { std::numeric_limits<double>::quiet_NaN(), c.start } })
            EXPECT_EQ(OrbPose::breathing(c.motion, progress), pose) << rawValue(c.motion) << " at " << progress;
}

TEST(OrbPoses, followTheBreathCurveInBetween)
{
    const auto quarter = OrbPose::breathing(BreathMotion::inhale, 0.25);
    EXPECT_EQ(quarter, OrbPose::mix(OrbPose::exhaled, OrbPose::inhaled, OrvelMotion::easeBreath(0.25)));
    EXPECT_LT(quarter.scale, 0.94 + 0.25 * 0.1); // eased, so behind the straight line
    EXPECT_NEAR(OrbPose::breathing(BreathMotion::exhale, 0.5).poolOpacity, 0.775, 1e-12);
}

TEST(OrbPoses, holdStillAndDimInAStraightLine)
{
    for (const double progress : { 0.0, 0.25, 0.5, 1.0 }) {
        auto in = OrbPose::breathing(BreathMotion::holdIn, progress);
        auto out = OrbPose::breathing(BreathMotion::holdOut, progress);
        EXPECT_DOUBLE_EQ(in.brightness, 1.08 - 0.04 * progress);
        EXPECT_DOUBLE_EQ(out.brightness, 0.82 - 0.02 * progress);
        in.brightness = OrbPose::inhaled.brightness;
        out.brightness = OrbPose::exhaled.brightness;
        EXPECT_EQ(in, OrbPose::inhaled);
        EXPECT_EQ(out, OrbPose::exhaled);
    }
    EXPECT_EQ(OrbPose::breathing(BreathMotion::holdIn, 7), OrbPose::breathing(BreathMotion::holdIn, 1));
}

TEST(OrbPoses, mixClampsItsShare)
{
    EXPECT_EQ(OrbPose::mix(OrbPose::rest, OrbPose::paused, 2), OrbPose::paused);
    EXPECT_EQ(OrbPose::mix(OrbPose::rest, OrbPose::paused, -1), OrbPose::rest);
    const OrbPose faint { 0.3, 0.7, 1.1, 0.94 }, strong { 0.9, 0.1, 0.3, 0.1 }; // a + (b − a) misses all four
    EXPECT_EQ(OrbPose::mix(faint, strong, 1), strong);
    EXPECT_EQ(OrbPose::mix(OrbPose::rest, OrbPose::paused, 0.5), (OrbPose { 1, 0.8, 1, 0.75 }));
}
