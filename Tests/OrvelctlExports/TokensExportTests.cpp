#include "Tools/orvelctl/exports/TokensExport.h"

#include <gmock/gmock.h>

#include "OrvelDesign/Tokens.h"
#include "OrvelPlatform/Base/Json.h"
#include "Tools/orvelctl/exports/MetricsExport.h"

using namespace orvel;
using testing::HasSubstr;
using testing::Not;

namespace {

/// The members of an exported object, as long as the whole text lives.
JsonObjectReader object(JsonObjectReader parent, std::string_view key)
{
    const auto found = parent.find(key);
    EXPECT_TRUE(found && found->isObject()) << key;
    return JsonObjectReader(*found);
}

/// The lines of the block that a media query opens.
std::string block(const std::string& css, std::string_view query)
{
    const auto start = css.find("@media " + std::string(query) + " {");
    EXPECT_NE(start, std::string::npos) << query;
    return css.substr(start, css.find("\n}\n", start) - start);
}

}

TEST(TokensAsJson, holdEveryTokenOfEveryGroup)
{
    const auto parsed = JsonDocument::parse(tokensAsJson());
    ASSERT_TRUE(parsed) << parsed.error().text();
    const JsonObjectReader root(parsed->root());
    const auto expectAll = [&](std::string_view group, const auto& all) {
        auto members = object(root, group);
        for (const auto& token : all)
            EXPECT_TRUE(members.find(token.name)) << group << '.' << token.name;
    };
    expectAll("color", Tokens::Color::all);
    expectAll("space", Tokens::Space::all);
    expectAll("radius", Tokens::Radius::all);
    expectAll("duration", Tokens::Duration::all);
    expectAll("easing", Tokens::Easing::all);
    expectAll("opacity", Tokens::Opacity::all);
    expectAll("shadow", Tokens::Shadow::all);
    expectAll("typeSpec", Tokens::TypeSpec::all);

    auto veil = object(object(root, "color"), "veil");
    EXPECT_TRUE(veil.find("duskSolid"));
    auto line = object(object(root, "color"), "line");
    EXPECT_TRUE(line.find("dawnHighContrast"));
    EXPECT_FALSE(line.find("dawnSolid")); // absent, not null
}

TEST(TokensAsJson, writeEachTypeInTheFormatsWay)
{
    const auto json = tokensAsJson();
    for (const std::string_view part : {
             R"("components": [0.9569, 0.9255, 0.8745], "alpha": 0.06})",
             R"("$value": {"value": 0.12, "unit": "s"})",
             R"("$value": [0.37, 0, 0.63, 1])",
             R"("offsetY": {"value": -12, "unit": "px"})",
             R"("app.orvel": {"family": "serif", "lineHeight": {"value": 26, "unit": "px"}, "italic": true})",
         })
        EXPECT_THAT(json, HasSubstr(std::string(part)));
}

TEST(TokensAsCss, followThePreferencesOfTheReader)
{
    const auto css = tokensAsCss();
    const auto light = css.substr(0, css.find("@media"));
    EXPECT_THAT(light, HasSubstr("  --orvel-space-s10: 40px;\n"));
    EXPECT_THAT(light, HasSubstr("  --orvel-space-mac-control-xl: 40px;\n"));
    EXPECT_THAT(light, HasSubstr("  --orvel-color-surface-2: color(srgb 1 1 1);\n"));
    EXPECT_THAT(light, HasSubstr("  --orvel-type-caption-serif: italic 400 20px/26px \"Source Serif 4\", serif;\n"));
    EXPECT_THAT(light, HasSubstr("  --orvel-tracking-label-caps: 0.2px;\n"));

    const auto dark = block(css, "(prefers-color-scheme: dark)");
    EXPECT_THAT(dark, HasSubstr("--orvel-color-line: color(srgb 0.9569 0.9255 0.8745 / 0.1);"));
    EXPECT_THAT(dark, Not(HasSubstr("--orvel-space")));
    const auto contrast = block(css, "(prefers-contrast: more) and (prefers-color-scheme: dark)");
    EXPECT_THAT(contrast, HasSubstr("--orvel-color-line: color(srgb 0.9569 0.9255 0.8745 / 0.2);"));
    EXPECT_THAT(contrast, Not(HasSubstr("--orvel-color-bg:")));
    // Where both are asked for, the solid veil comes last and holds.
    EXPECT_LT(css.find("(prefers-contrast"), css.find("(prefers-reduced-transparency"));
}

TEST(TokensAsCss, listTheLayerThatLiesOnTopFirst)
{
    EXPECT_THAT(tokensAsCss(),
        HasSubstr("--orvel-shadow-lit-edge-active: inset 0px 0px 0px 1px color(srgb 0.9725 0.7882 0.5843 / 0.18), "
                  "inset 0px 1px 0px 0px color(srgb 0.9725 0.7882 0.5843 / 0.45);"));
}

TEST(Metrics, areOfEveryRole)
{
    const auto json = metricsAsJson(BiggerText { 2 }, 1);
    const auto parsed = JsonDocument::parse(json);
    ASSERT_TRUE(parsed) << parsed.error().text();
    EXPECT_EQ(JsonArrayReader(JsonObjectReader(parsed->root()).find("roles").value()).count(), 25u);
    EXPECT_THAT(json, HasSubstr("\"role\": \"body\",\n      \"family\": \"rounded\",\n      \"size\": 17,"));
    EXPECT_THAT(metricsAsJson(BiggerText { 0 }, std::nullopt), Not(HasSubstr("\"scale\"")));

    const auto table = metricsAsTable(BiggerText { 0 }, 1.5);
    EXPECT_EQ(std::ranges::count(table, '\n'), 26);
    EXPECT_THAT(table, HasSubstr("roomCue         serif         84      96     400  upright free     largeTitle\n"));
}
