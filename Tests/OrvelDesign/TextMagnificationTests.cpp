#include "OrvelDesign/TextMagnification.h"

#include <gtest/gtest.h>

#include "OrvelDesign/EnvironmentValues.h"

using namespace orvel;

TEST(TextMagnification, growsAsBodyTextDoes)
{
    const auto of = [](int steps, double scale) {
        return textMagnification(
            Environment().with<OrvelBiggerTextKey>(BiggerText(steps)).with<OrvelSystemTextScaleKey>(scale));
    };
    EXPECT_DOUBLE_EQ(of(0, 1), 1);
    EXPECT_DOUBLE_EQ(of(0, 2), 2);
    EXPECT_DOUBLE_EQ(of(2, 1), 17.0 / 13);
    EXPECT_DOUBLE_EQ(of(4, 1.5), (19.5 + 8) / 13);
}
