#include "OrvelDesign/OrvelMotion.h"

#include <gtest/gtest.h>

using namespace orvel;
using OrvelMotion::cueOpacity;
using OrvelMotion::menuBarBreath;

TEST(OrvelMotion, aCueFadesInAndOut)
{
    const double half = OrvelMotion::fadeCurve.value(0.5);
    struct Case {
        std::string_view name;
        double elapsed, phase, opacity;
    };
    const Case cases[] = {
        { "at the start", 0, 5.5, 0 },
        { "before the start", -1, 5.5, 0 },
        { "half way in", 0.25, 5.5, half },
        { "in", 0.5, 5.5, 1 },
        { "in the middle", 3, 5.5, 1 },
        { "last whole moment", 5.1, 5.5, 1 },
        { "half way out", 5.3, 5.5, half },
        { "at the end", 5.5, 5.5, 0 },
        { "after the end", 9, 5.5, 0 },
        { "too short for both, still coming", 0.2, 0.6, OrvelMotion::fadeCurve.value(0.4) },
        { "too short for both, already leaving", 0.4, 0.6, half },
        { "no phase at all", 0, 0, 0 },
    };
    for (const auto& c : cases)
        EXPECT_NEAR(cueOpacity(Seconds { c.elapsed }, Seconds { c.phase }), c.opacity, 1e-12) << c.name;
}

TEST(OrvelMotion, theMenuBarBreathesEveryElevenSeconds)
{
    const auto at = [](double seconds) { return menuBarBreath(Seconds { seconds }, false); };
    EXPECT_EQ(at(0), 0);
    EXPECT_EQ(at(11), 0);
    EXPECT_EQ(at(5.5), 1);
    EXPECT_EQ(at(-5.5), 1);
    EXPECT_NEAR(at(2.75), 0.5, 1e-12);
    EXPECT_NEAR(at(-2.75), 0.5, 1e-12);
    EXPECT_NEAR(at(-1), at(10), 1e-12);
    for (double t = 0; t < 5.35; t += 0.1) {
        EXPECT_LT(at(t), at(t + 0.1));
        EXPECT_NEAR(at(t), at(11 - t), 1e-12);
        EXPECT_NEAR(at(t), at(t + 11e6), 1e-6);
    }
    for (const double t : { -3.0, 0.0, 4.2, 11.0 })
        EXPECT_EQ(menuBarBreath(Seconds { t }, true), 1);
}
