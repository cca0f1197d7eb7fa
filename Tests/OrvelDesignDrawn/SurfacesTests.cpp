#include <gtest/gtest.h>

#include "OrvelDesign/Drawn/CardBackground.h"
#include "OrvelDesign/Drawn/DropShadows.h"
#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/Drawn/OrvelBackground.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelPlatform/Views/Shape.h"
#include "Tests/OrvelDesignDrawn/Drawn.h"

using namespace orvel;

namespace {

const Rect place { 10, 20, 100, 60 };
const Color red { 1, 0, 0 };

}

TEST(CardBackgrounds, areFilledAndThenLitLayerByLayer)
{
    struct Case {
        std::string_view name;
        LitEdge edge;
        Environment environment;
        std::string_view marks;
    };
    const Case cases[] = {
        { "active in the light", LitEdge::active, {},
            "shadow 10,20 100×60 rounded 18 inset 0,1 blur 0 spread 0 #FFFFFF\n"
            "shadow 10,20 100×60 rounded 18 0,2 blur 10 spread 0 #E89A5E 18%\n"
            "shadow 10,20 100×60 rounded 18 inset 0,0 blur 0 spread 1 #E89A5E 35%\n" },
        { "active in the dark", LitEdge::active, dark(),
            "shadow 10,20 100×60 rounded 18 inset 0,1 blur 0 spread 0 #F8C995 45%\n"
            "shadow 10,20 100×60 rounded 18 inset 0,0 blur 0 spread 1 #F8C995 18%\n" },
        { "unlit", LitEdge::none, dark(), "" },
        { "more contrast of the system", LitEdge::active,
            dark().with<ColorSchemeContrastKey>(ColorSchemeContrast::increased),
            "stroke 10.5,20.5 99×59 rounded 17.5 width 1 #F4ECDF 20%\n" },
        { "more contrast of the application", LitEdge::none,
            Environment().with<OrvelAccessibilityKey>({ .increaseContrast = true }),
            "stroke 10.5,20.5 99×59 rounded 17.5 width 1 #262236 20%\n" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawn(CardBackground { red, 18, c.edge }, place, c.environment),
            "fill 10,20 100×60 rounded 18 #FF0000\n" + std::string(c.marks))
            << c.name;
}

TEST(DropShadows, lieOutsideWhateverTheirLayersSay)
{
    EXPECT_EQ(drawn(DropShadows { Tokens::Shadow::litEdgeActive.dusk, Capsule {}, Shape { Capsule {}, red } }, place),
        "shadow 10,20 100×60 capsule 0,1 blur 0 spread 0 #F8C995 45%\n"
        "shadow 10,20 100×60 capsule 0,0 blur 0 spread 1 #F8C995 18%\n"
        "fill 10,20 100×60 capsule #FF0000\n");
}

TEST(FocusRings, standTwoPointsOutsideTheirControl)
{
    const auto control = [](bool isFocused) {
        return FocusRing { isFocused, RoundedRectangle { 8 }, Shape { RoundedRectangle { 8 }, red } };
    };
    const std::string plain = "fill 10,20 100×60 rounded 8 #FF0000\n";
    const auto ringed = plain + "stroke 6.5,16.5 107×67 rounded 11.5 width 3 #8F4E1C\n";
    EXPECT_EQ(drawn(control(false), place), plain);
    EXPECT_EQ(drawn(control(true), place), ringed);
    EXPECT_EQ(drawn(control(false), place, Environment().with<OrvelInteractionPreviewKey>(InteractionPreview::focused)),
        ringed);
    EXPECT_EQ(
        drawn(control(false), place, Environment().with<OrvelInteractionPreviewKey>(InteractionPreview::hover)), plain);
}

TEST(OrvelBackgrounds, haveGrainInThemWhereItMayShow)
{
    const OrvelBackground background { Palette::bg };
    const std::string plain = "fill 10,20 100×60 rectangle #17152A\n";
    EXPECT_EQ(drawn(background, place, dark()), "fill 10,20 100×60 rectangle #17152A texture grain 0.3\n");
    EXPECT_EQ(drawn(background, place), "fill 10,20 100×60 rectangle #F4EEE4 texture grain 0.16\n");
    EXPECT_EQ(drawn(background, place, dark().with<ReduceTransparencyKey>(true)), plain);
    EXPECT_EQ(drawn(background, place, dark().with<OrvelAccessibilityKey>({ .increaseContrast = true })), plain);
}
