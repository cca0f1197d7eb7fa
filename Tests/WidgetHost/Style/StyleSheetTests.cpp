#include "WidgetHost/Style/StyleSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvel::tests {

namespace {

using testing::HasSubstr;
using testing::Not;

/// The rule that is written last, without those that every window has.
std::string lastRule(const StyleSheet& sheet)
{
    const auto end = sheet.text().rfind('\n');
    return sheet.text().substr(sheet.text().rfind('\n', end - 1) + 1, end);
}

TEST(StyleSheet, rulesReachOneWindowOnly)
{
    struct Case {
        std::string_view selector, rule;
    };
    const Case cases[] {
        { "button", "#w button { color: red; }\n" },
        { "switch,scale", "#w switch, #w scale { color: red; }\n" },
        { "&", "#w { color: red; }\n" },
        { "&.maximized .foot,.foot", "#w.maximized .foot, #w .foot { color: red; }\n" },
    };
    for (const auto& c : cases) {
        StyleSheet sheet("w", {});
        sheet.rule(c.selector, "color: red;");
        EXPECT_EQ(lastRule(sheet), c.rule);
    }
}

TEST(StyleSheet, sizesFollowTheDesktopAndThePersonsOwnSetting)
{
    struct Case {
        int biggerText;
        double textScale;
        std::string_view size;
    };
    const Case cases[] { { 0, 1, "13.00px" }, { 2, 1, "17.00px" }, { 0, 1.5, "19.50px" }, { 4, 2, "34.00px" } };
    for (const auto& c : cases) {
        const StyleSheet sheet("w", { .biggerText = BiggerText(c.biggerText), .textScale = c.textScale });
        EXPECT_THAT(sheet.font(MacTypeRole::body), HasSubstr(c.size));
    }
}

TEST(StyleSheet, aCardUnderMoreContrastHasALineAndNoLight)
{
    const StyleSheet lit("w", { .colors = { .dark = true } });
    EXPECT_THAT(lit.edge(LitEdge::active), HasSubstr("inset 0px 1px 0px 0px rgba(248,201,149,0.450)"));
    EXPECT_THAT(lit.edge(LitEdge::active), Not(HasSubstr("border")));
    const StyleSheet plain("w", { .colors = { .dark = true, .increaseContrast = true } });
    EXPECT_EQ(plain.edge(LitEdge::active), "box-shadow: none; border: 1px solid rgba(244,236,223,0.200);");
}

TEST(StyleSheet, nothingMovesWhereMotionIsReduced)
{
    EXPECT_THAT(StyleSheet("w", {}).text(), HasSubstr("0.12s"));
    EXPECT_THAT(StyleSheet("w", { .reducesMotion = true }).text(), Not(HasSubstr("0.12s")));
}

}

}
