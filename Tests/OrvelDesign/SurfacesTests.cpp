#include <gtest/gtest.h>

#include "OrvelDesign/CardBackground.h"
#include "OrvelDesign/CardShape.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/OrvelBackground.h"
#include "OrvelDesign/Palette.h"

using namespace orvel;

TEST(CardEdges, areLitByAppearanceUnlessContrastIsIncreased)
{
    const auto insets = [](const CardEdge& edge) {
        std::string order;
        for (const auto& layer : edge.layers)
            order += layer.inset ? 'i' : 'o';
        return order;
    };
    struct Case {
        LitEdge edge;
        std::string_view dark, light;
    };
    const Case cases[] = { { LitEdge::resting, "ii", "ioi" }, { LitEdge::active, "ii", "ioi" },
        { LitEdge::none, "", "" } };
    for (const auto& c : cases) {
        EXPECT_EQ(insets(cardEdge(c.edge, { .dark = true })), c.dark) << rawValue(c.edge);
        EXPECT_EQ(insets(cardEdge(c.edge, {})), c.light) << rawValue(c.edge);
        EXPECT_FALSE(cardEdge(c.edge, {}).border) << rawValue(c.edge);
        for (const bool dark : { false, true }) {
            const auto edge = cardEdge(c.edge, { .dark = dark, .increaseContrast = true });
            EXPECT_TRUE(edge.layers.empty());
            ASSERT_TRUE(edge.border);
            EXPECT_EQ(edge.border->width, 1);
            EXPECT_EQ(edge.border->color.alpha, 0.2); // the line's own answer to contrast
        }
    }
    EXPECT_NE(cardEdge(LitEdge::resting, {}), cardEdge(LitEdge::active, {}));
}

TEST(CardShapes, keepTheirCornersInsideTheirSides)
{
    struct Case {
        std::string_view name;
        CardShape shape;
        CardShape::Outline in, out;
    };
    const Case cases[] = {
        { "no inset", { 18 }, { 0, 0, 100, 60, 0 }, { 0, 0, 100, 60, 18 } },
        { "an inset shrinks the radius", CardShape { 18 }.insetBy(2).insetBy(1), { 10, 20, 100, 60, 0 },
            { 13, 23, 94, 54, 15 } },
        { "never below a square corner", { 4, 6 }, { 0, 0, 100, 60, 0 }, { 6, 6, 88, 48, 0 } },
        { "outward", { 4, -2 }, { 0, 0, 100, 60, 0 }, { -2, -2, 104, 64, 6 } },
        { "a capsule", { 999 }, { 0, 0, 100, 60, 0 }, { 0, 0, 100, 60, 30 } },
        { "more inset than room", { 8, 40 }, { 0, 0, 100, 60, 0 }, { 40, 30, 20, 0, 0 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.shape.path(c.in), c.out) << c.name;
}

TEST(OrvelBackgrounds, laySomeGrainOnlyWhereItMayShow)
{
    const Environment light;
    const auto dark = light.with<ColorSchemeKey>(ColorScheme::dark);
    EXPECT_EQ(backgroundPaint(Palette::bg, dark), (BackgroundPaint { Tokens::Color::bg.dusk, 0.3 }));
    EXPECT_EQ(backgroundPaint(Palette::bg, light), (BackgroundPaint { Tokens::Color::bg.dawn, 0.16 }));
    EXPECT_FALSE(Grain::opacity(dark.with<OrvelAccessibilityKey>({ .reduceTransparency = true })));
    EXPECT_FALSE(Grain::opacity(dark.with<ColorSchemeContrastKey>(ColorSchemeContrast::increased)));
    EXPECT_TRUE(Grain::opacity(dark.with<OrvelAccessibilityKey>({ .reduceMotion = true })));
}
