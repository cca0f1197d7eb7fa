#include "OrvelDesign/Bezier.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "OrvelDesign/TokensMotion.h"

using namespace orvel;

namespace {

long double coordinate(long double first, long double second, long double t)
{
    const long double u = 1 - t;
    return 3 * u * u * t * first + 3 * u * t * t * second + t * t * t;
}

/// The slow obvious way: halving until nothing is left to halve.
double slowly(const Bezier& curve, double x)
{
    long double low = 0, high = 1;
    for (int i = 0; i < 200; ++i) {
        const long double middle = (low + high) / 2;
        (coordinate(curve.x1, curve.x2, middle) < x ? low : high) = middle;
    }
    return static_cast<double>(coordinate(curve.y1, curve.y2, low));
}

}

TEST(Beziers, areExactAtTheEndsAndClampOutside)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [name, curve] : Tokens::Easing::all) {
        EXPECT_EQ(curve.value(0), 0) << name;
        EXPECT_EQ(curve.value(1), 1) << name;
        EXPECT_EQ(curve.value(-0.2), 0) << name;
        EXPECT_EQ(curve.value(1.7), 1) << name;
        EXPECT_EQ(curve.value(nan), 0) << name;
    }
    EXPECT_EQ(Tokens::Easing::easeHold.value(0.3), 0.3);
}

TEST(Beziers, agreeWithHalvingAndNeverFallBack)
{
    std::mt19937 random(20260302);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<Bezier> curves { Tokens::Easing::easeBreath, Tokens::Easing::easeFade, { 0, 0, 0, 1 }, { 1, 0, 0, 1 },
        { 1, 0, 1, 1 }, { 0, 1, 1, 0 } };
    for (int i = 0; i < 40; ++i)
        curves.push_back({ unit(random), unit(random), unit(random), unit(random) });
    for (const auto& curve : curves)
        for (int i = 0; i < 200; ++i) {
            const double x = unit(random);
            // Where the curve stands upright, a last bit of x moves y by more than its own last bits.
            const double tolerance = curve.x1 == 1 && curve.x2 == 0 ? 1e-5 : 1e-11;
            EXPECT_NEAR(curve.value(x), slowly(curve, x), tolerance)
                << curve.x1 << ' ' << curve.y1 << ' ' << curve.x2 << ' ' << curve.y2 << " at " << x;
        }
    for (double x = 0, last = 0; x < 1; x += 1.0 / 4096) {
        EXPECT_GE(Tokens::Easing::easeFade.value(x), last);
        last = Tokens::Easing::easeFade.value(x);
    }
}

TEST(Beziers, theBreathIsSymmetric)
{
    for (double x = 0; x <= 1; x += 1.0 / 64)
        EXPECT_NEAR(Tokens::Easing::easeBreath.value(x) + Tokens::Easing::easeBreath.value(1 - x), 1, 1e-14);
}
