#include "OrvelDesign/MacTypeRole.h"

#include <limits>

#include <gtest/gtest.h>

#include "OrvelDesign/MenuBarOrb.h"
#include "OrvelDesign/TokensType.h"

using namespace orvel;

static_assert(BiggerText { 9 } == BiggerText::largest && BiggerText { 9 }.points() == 8);
static_assert(BiggerText { -3 } == BiggerText::actualSize && BiggerText { -3 }.points() == 0);
static_assert(BiggerText::largest.bigger() == BiggerText::largest && !BiggerText::largest.canGrow());
static_assert(BiggerText::actualSize.smaller() == BiggerText::actualSize && !BiggerText::actualSize.canShrink());
static_assert(BiggerText { 2 }.bigger().steps() == 3 && BiggerText { 2 }.smaller().steps() == 1);
static_assert(BiggerText { 1 } < BiggerText { 2 } && BiggerText { 1 }.canGrow() && BiggerText { 1 }.canShrink());
static_assert(BiggerText { std::numeric_limits<int>::max() } == BiggerText::largest);

TEST(MacTypeRoles, growByScaleFirstAndBiggerTextAfter)
{
    struct Case {
        MacTypeRole role;
        int steps;
        double scale, size, lineHeight;
    };
    const Case cases[] = {
        { MacTypeRole::body, 2, 1, 17, 22 },
        { MacTypeRole::roomCue, 0, 1.5, 84, 96 },
        { MacTypeRole::subheadline, 4, 2, 30, 36 },
    };
    for (const auto& c : cases) {
        const auto found = metrics(c.role, BiggerText { c.steps }, c.scale);
        EXPECT_EQ(found.size, c.size) << rawValue(c.role);
        EXPECT_EQ(found.lineHeight, c.lineHeight) << rawValue(c.role);
        EXPECT_EQ(found.spec, spec(c.role)) << rawValue(c.role);
    }
}

TEST(MacTypeRoles, takeTheirFaceFromTheRoleTheyStandFor)
{
    struct Case {
        MacTypeRole role, base;
    };
    const Case cases[] = {
        { MacTypeRole::controlXL, MacTypeRole::headline },
        { MacTypeRole::veilTitle, MacTypeRole::hero },
        { MacTypeRole::roomTitle, MacTypeRole::hero },
        { MacTypeRole::veilCue, MacTypeRole::cue },
        { MacTypeRole::roomCue, MacTypeRole::cue },
        { MacTypeRole::veilCaption, MacTypeRole::captionSerif },
        { MacTypeRole::roomCaption, MacTypeRole::captionSerif },
        { MacTypeRole::veilButton, MacTypeRole::title3 },
        { MacTypeRole::roomButton, MacTypeRole::title3 },
        { MacTypeRole::roomTile, MacTypeRole::title2 },
    };
    for (const auto& c : cases) {
        const auto base = spec(c.base);
        EXPECT_EQ(spec(c.role).resized(base.size, base.lineHeight), base) << rawValue(c.role);
        EXPECT_GE(spec(c.role).size, base.size) << rawValue(c.role);
    }
    EXPECT_EQ(spec(MacTypeRole::veilContext).weight, 400);
    EXPECT_EQ(spec(MacTypeRole::roomContext).weight, 400);
}

TEST(MacTypeRoles, onlyNumeralsHaveTabularDigits)
{
    for (const auto role : allCases<MacTypeRole>())
        EXPECT_EQ(metrics(role, BiggerText::actualSize, 1).tabularDigits,
            role == MacTypeRole::numeral || role == MacTypeRole::popoverNumeral)
            << rawValue(role);
    EXPECT_TRUE(MenuBarOrbGlyph::titleFont(BiggerText::actualSize).tabularDigits);
}

class PreferredSizesTest : public testing::Test {
protected:
    ~PreferredSizesTest() override { setPreferredSizes(nullptr); }
};

TEST_F(PreferredSizesTest, scaleARoleByItsOwnTextStyle)
{
    const auto sizeOf = [](MacTypeRole role) { return metrics(role, BiggerText { 1 }, std::nullopt).size; };
    EXPECT_EQ(sizeOf(MacTypeRole::cue), 42); // references: the scale is 1

    setPreferredSizes([](SystemTextStyle style) { return style == SystemTextStyle::largeTitle ? 39.0 : 0.0; });
    EXPECT_EQ(sizeOf(MacTypeRole::cue), 62); // 39 of 26: half as large again, then 2 points
    EXPECT_EQ(sizeOf(MacTypeRole::body), 15); // 0 is no size
    EXPECT_EQ(metrics(MacTypeRole::cue, BiggerText { 0 }, 1).size, 40); // a given scale wins

    setPreferredSizes([](SystemTextStyle style) { return referenceSize(style) * 2; });
    for (const auto role : allCases<MacTypeRole>())
        EXPECT_EQ(sizeOf(role), 2 + 2 * spec(role).size) << rawValue(role);
    EXPECT_EQ(preferredSize(SystemTextStyle::caption2), 20);

    setPreferredSizes(nullptr);
    EXPECT_EQ(sizeOf(MacTypeRole::cue), 42);
}
