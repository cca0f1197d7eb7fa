#include "OrvelWidgetsUI/WidgetLook.h"

#include <gtest/gtest.h>

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensType.h"
#include "OrvelWidgetsUI/WidgetBackground.h"
#include "OrvelWidgetsUI/WidgetColors.h"
#include "OrvelWidgetsUI/WidgetSize.h"
#include "OrvelWidgetsUI/WidgetType.h"

using namespace orvel;
namespace TypeSpec = Tokens::TypeSpec;

static_assert(widgetLook(WidgetRenderingMode::fullColor, ColorScheme::dark) == WidgetLook::dusk);
static_assert(widgetLook(WidgetRenderingMode::fullColor, ColorScheme::light) == WidgetLook::dawn);
static_assert(widgetLook(WidgetRenderingMode::vibrant, ColorScheme::dark) == WidgetLook::mono);
static_assert(widgetLook(WidgetRenderingMode::vibrant, ColorScheme::light) == WidgetLook::mono);
static_assert(widgetLook(WidgetRenderingMode::accented, ColorScheme::dark) == WidgetLook::clear);
static_assert(widgetLook(WidgetRenderingMode::accented, ColorScheme::light) == WidgetLook::clear);
static_assert(isSystemTinted(WidgetLook::mono) && isSystemTinted(WidgetLook::clear));
static_assert(!isSystemTinted(WidgetLook::dusk) && !isSystemTinted(WidgetLook::dawn));
static_assert(fromRawValue<WidgetLook>("clear") == WidgetLook::clear && !fromRawValue<WidgetLook>("Clear"));

namespace {

const Environment bright = Environment {}.with<ColorSchemeKey>(ColorScheme::light);
const Environment dark = Environment {}.with<ColorSchemeKey>(ColorScheme::dark);
const Environment contrasty = bright.with<ColorSchemeContrastKey>(ColorSchemeContrast::increased);

}

TEST(WidgetLooks, carryTheirOwnSchemeAndLetContrastIn)
{
    EXPECT_EQ(
        resolve(WidgetColors { WidgetLook::dusk }.title(), WidgetLook::dusk, bright), Tokens::Color::textPrimary.dusk);
    EXPECT_EQ(
        resolve(WidgetColors { WidgetLook::dawn }.title(), WidgetLook::dawn, dark), Tokens::Color::textPrimary.dawn);
    EXPECT_EQ(resolve(WidgetColors { WidgetLook::dusk }.detail(), WidgetLook::dusk, contrasty),
        Tokens::Color::textSecondary.duskHighContrast);
    for (const auto look : { WidgetLook::mono, WidgetLook::clear })
        EXPECT_EQ(lookEnvironment(look, dark).get<ColorSchemeKey>(), ColorScheme::dark);
}

TEST(WidgetBackgrounds, runFromTheSurfaceToTheBackground)
{
    struct Case {
        WidgetLook look;
        double middle;
    };
    for (const auto& c : { Case { WidgetLook::dusk, 0.55 }, { WidgetLook::dawn, 0.6 } })
        for (const auto& outside : { bright, dark }) {
            const auto gradient = widgetBackground(c.look, outside);
            ASSERT_TRUE(gradient);
            EXPECT_EQ(gradient->start, (WidgetGradient::UnitPoint { 0.37, 0.02 }));
            EXPECT_EQ(gradient->end, (WidgetGradient::UnitPoint { 0.63, 0.98 }));
            const ColorFlags flags { .dark = c.look == WidgetLook::dusk };
            const WidgetGradient::Stop stops[] = {
                { 0, Palette::surface2.rgba(flags) },
                { c.middle, Palette::surface1.rgba(flags) },
                { 1, Palette::bg.rgba(flags) },
            };
            EXPECT_TRUE(std::ranges::equal(gradient->stops, stops)) << rawValue(c.look);
        }
    EXPECT_FALSE(widgetBackground(WidgetLook::mono, dark));
    EXPECT_FALSE(widgetBackground(WidgetLook::clear, bright));
}

TEST(WidgetColors, ofTintedLooksAreWhiteByEmphasis)
{
    for (const auto look : { WidgetLook::mono, WidgetLook::clear }) {
        const WidgetColors colors { look };
        const auto alpha = [&](const WidgetInk& ink, const Environment& outside = bright) {
            const auto color = resolve(ink, look, outside);
            EXPECT_EQ(color->withAlpha(1), (RGBA { 1, 1, 1, 1 }));
            return color->alpha;
        };
        const auto tone = IdentityTone::sand;
        for (const auto& front : { colors.title(), colors.headerSymbol(tone), colors.ringProgress(),
                 colors.accentFill(), colors.todayBar() })
            EXPECT_EQ(alpha(front), 1);
        EXPECT_EQ(alpha(colors.kicker()), 0.82);
        EXPECT_EQ(alpha(colors.headerDisc(tone)), 0.18);
        for (const auto& weaker : { colors.detail(), colors.ringTrack(), colors.line(), colors.orbPool() }) {
            EXPECT_LT(alpha(weaker), 1);
            EXPECT_GT(alpha(weaker, contrasty), alpha(weaker));
        }
        EXPECT_FALSE(resolve(colors.accentOn(), look, bright));
    }
}

TEST(WidgetColors, ofFullColourLooksAreThePalettes)
{
    const WidgetColors colors { WidgetLook::dawn };
    const auto rose = Tokens::Color::blockRose.dawn;
    EXPECT_EQ(resolve(colors.headerSymbol(IdentityTone::rose), colors.look, dark), rose);
    EXPECT_EQ(resolve(colors.headerDisc(IdentityTone::rose), colors.look, dark), rose.withAlpha(0.18));
    EXPECT_EQ(resolve(colors.orbPool(), colors.look, dark), Tokens::Color::orbPool.dawn); // its own alpha is kept
    EXPECT_EQ(resolve(colors.accentOn(), colors.look, dark), Tokens::Color::accentOn.dawn);
    EXPECT_EQ(resolve(colors.line(), colors.look, contrasty), Tokens::Color::line.dawnHighContrast);
}

TEST(WidgetTypes, takeTheirSizesFromTheTypeTokens)
{
    struct Case {
        WidgetType type;
        double size, lineHeight;
        int weight;
    };
    const Case cases[] = {
        { WidgetType::kicker, TypeSpec::macSubheadline.size, 13, 700 },
        { WidgetType::smallTitle, TypeSpec::macTitle3.size, 19, 600 },
        { WidgetType::mediumTitle, TypeSpec::macTitle2.size, TypeSpec::macTitle2.lineHeight, 600 },
        { WidgetType::detail, TypeSpec::macCallout.size, TypeSpec::macCallout.lineHeight, 400 },
        { WidgetType::numberMedium, 20, 24, 300 },
        { WidgetType::numberLarge, 24, 28, 300 },
        { WidgetType::label, TypeSpec::macSubheadline.size, TypeSpec::macSubheadline.lineHeight, 400 },
        { WidgetType::button, TypeSpec::macCallout.size, TypeSpec::macCallout.lineHeight, 600 },
        { WidgetType::buttonLarge, TypeSpec::macHeadline.size, TypeSpec::macHeadline.lineHeight, 600 },
    };
    ASSERT_EQ(std::size(cases), allCases<WidgetType>().size());
    for (const auto& c : cases) {
        const double tracking = c.type == WidgetType::kicker ? 0.12 * c.size : 0;
        const TypeSpecValue expected { TypeFamily::rounded, c.size, c.lineHeight, c.weight, false, tracking };
        EXPECT_EQ(spec(c.type), expected) << rawValue(c.type);
    }
}
