#include "OrvelDesign/Drawn/OrvelFont.h"

#include <gtest/gtest.h>

#include "OrvelDesign/Drawn/Wordmark.h"
#include "OrvelDesign/MenuBarOrb.h"
#include "OrvelDesign/TokensType.h"
#include "Tests/OrvelDesignDrawn/Drawn.h"

using namespace orvel;

TEST(OrvelFonts, followTheirRoleAndTheEnvironment)
{
    const auto bigger = Environment().with<OrvelBiggerTextKey>(BiggerText(2)).with<OrvelSystemTextScaleKey>(1.5);
    struct Case {
        std::string_view name;
        TextStyle got, expected;
    };
    const Case cases[] = {
        { "rounded", OrvelFont { MacTypeRole::body }.style({}), { FontFamily::rounded, 13, 18, 400 } },
        { "serif and italic", OrvelFont { MacTypeRole::captionSerif }.style({}),
            { FontFamily::serif, 16, 22, 400, true } },
        { "another weight, counting digits", OrvelFont { MacTypeRole::numeral, 700 }.style({}),
            { .family = FontFamily::rounded, .size = 26, .lineHeight = 32, .weight = 700, .tabularDigits = true } },
        { "bigger", OrvelFont { MacTypeRole::cue }.style(bigger), { FontFamily::serif, 64, 76, 400 } },
        { "beside the menu bar's orb", font(MenuBarOrbGlyph::titleFont(BiggerText(1))),
            { .family = FontFamily::rounded, .size = 15, .lineHeight = 20, .weight = 400, .tabularDigits = true } },
        { "a spec as it stands", font(Tokens::TypeSpec::labelCaps),
            { .family = FontFamily::rounded, .size = 12, .lineHeight = 16, .weight = 600, .tracking = 0.2 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.got, c.expected) << c.name;
}

TEST(Wordmarks, growWithTheText)
{
    EXPECT_EQ(drawn(Wordmark {}, { 0, 0, 100, 28 }, dark()),
        "text 0,0 55×28 \"Orvel\" #F4ECDF\n"
        "element text 0,0 100×28 \"Orvel\"\n");
    EXPECT_EQ(
        measure(Wordmark {}, Proposal::ideal, Environment().with<OrvelBiggerTextKey>(BiggerText(1))).size.height, 30);
}
