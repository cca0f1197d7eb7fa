#include "OrvelDesign/Tokens.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

using namespace orvel;
namespace Color = Tokens::Color;

// Less transparency wins over more contrast, and a setting that a token has no variant for changes nothing.
static_assert(Color::veil.rgba({ .dark = true, .increaseContrast = true, .reduceTransparency = true }).alpha == 1);
static_assert(Color::veil.rgba({ .increaseContrast = true, .reduceTransparency = true }).alpha == 1);
static_assert(Color::veil.rgba({ .dark = true, .increaseContrast = true }).alpha == 0.96);
static_assert(Color::veil.rgba({ .dark = true }).alpha == 0.88);
static_assert(Color::veil.rgba({}).alpha == 0.92);
static_assert(Color::bg.rgba({ .dark = true, .increaseContrast = true, .reduceTransparency = true }) == Color::bg.dusk);
static_assert(Color::popoverFill.rgba({ .dark = true, .increaseContrast = true }).alpha == 0.9);
static_assert(Color::popoverFill.rgba({ .increaseContrast = true }).alpha == 0.88);
static_assert(Color::textSecondary.rgba({ .increaseContrast = true, .reduceTransparency = true })
    == Color::textSecondary.dawnHighContrast);

// A variant that is absent is not one that looks the same.
static_assert(Tokens::ColorPair { Color::bg.dusk, Color::bg.dawn } == Color::bg);
static_assert(Tokens::ColorPair { Color::bg.dusk, Color::bg.dawn, Color::bg.dusk } != Color::bg);

static_assert(RGBA { 0.5, 0.5, 0.5, 0.4 }.withAlpha(0.9) == RGBA { 0.5, 0.5, 0.5, 0.9 });

// Lists of layers compare by their layers and not by the room they have.
static_assert(Tokens::Shadow::litEdge.dusk.size() == 2 && Tokens::Shadow::litEdge.dawn.size() == 3);
static_assert(Tokens::Shadow::litEdge.dusk != Tokens::Shadow::litEdgeActive.dusk);
static_assert(ShadowLayers {}.empty());

TEST(Tokens, onlyTheStatedColoursHaveVariants)
{
    for (const auto& [name, pair] : Color::all) {
        EXPECT_EQ(pair.duskHighContrast.has_value(), name == "line" || name == "textSecondary" || name == "veil")
            << name;
        EXPECT_EQ(pair.duskSolid.has_value(), name == "veil" || name == "popoverFill") << name;
        EXPECT_EQ(pair.duskHighContrast.has_value(), pair.dawnHighContrast.has_value()) << name;
        EXPECT_EQ(pair.duskSolid.has_value(), pair.dawnSolid.has_value()) << name;
    }
}

TEST(Tokens, coloursAreWithinTheSpaceAndSolidOnesOpaque)
{
    for (const auto& [name, pair] : Color::all) {
        for (const auto& variant : { std::optional(pair.dusk), std::optional(pair.dawn), pair.duskHighContrast,
                 pair.dawnHighContrast, pair.duskSolid, pair.dawnSolid }) {
            if (!variant)
                continue;
            for (const double component : { variant->red, variant->green, variant->blue, variant->alpha })
                EXPECT_TRUE(component >= 0 && component <= 1) << name;
        }
        EXPECT_EQ(pair.duskSolid.value_or(pair.dusk.withAlpha(1)).alpha, 1) << name;
        EXPECT_EQ(pair.dawnSolid.value_or(pair.dawn.withAlpha(1)).alpha, 1) << name;
    }
}

TEST(Tokens, numberedStepsLieOnTheGrid)
{
    for (const auto& [name, value] : Tokens::Space::all) {
        if (name[0] == 's') {
            EXPECT_EQ(value, 4 * std::stoi(std::string(name.substr(1)))) << name;
        }
    }
}

TEST(Tokens, eachNameIsListedOnce)
{
    const auto areDistinct = [](const auto& all) {
        std::set<std::string_view> names;
        for (const auto& token : all)
            names.insert(token.name);
        return names.size() == all.size();
    };
    EXPECT_TRUE(areDistinct(Color::all));
    EXPECT_TRUE(areDistinct(Tokens::Space::all));
    EXPECT_TRUE(areDistinct(Tokens::Duration::all));
    EXPECT_TRUE(areDistinct(Tokens::TypeSpec::all));
}
