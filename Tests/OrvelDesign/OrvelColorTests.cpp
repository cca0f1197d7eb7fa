#include "OrvelDesign/OrvelColor.h"

#include <gtest/gtest.h>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/PressedCapsuleFill.h"

using namespace orvel;

namespace {

/// What the system says and what the application adds to it.
struct Setting {
    bool systemContrast = false, systemTransparency = false;
    OrvelAccessibility own {};
};

Environment environmentWith(ColorScheme scheme, Setting setting)
{
    Environment environment;
    environment.set<ColorSchemeKey>(scheme);
    if (setting.systemContrast)
        environment.set<ColorSchemeContrastKey>(ColorSchemeContrast::increased);
    environment.set<ReduceTransparencyKey>(setting.systemTransparency);
    environment.set<OrvelAccessibilityKey>(setting.own);
    return environment;
}

}

static_assert(!fromRawValue<IdentityTone>("") && !fromRawValue<IdentityTone>("Lavender"));
static_assert(Palette::all.size() == 29);

TEST(OrvelColors, resolveInAnEnvironmentByItsSchemeAndTheSettingsOfBoth)
{
    struct Case {
        std::string_view name;
        Setting setting;
        RGBA line, veil;
    };
    const auto& line = Tokens::Color::line;
    const auto& veil = Tokens::Color::veil;
    const Case cases[] = {
        { "nothing set", {}, line.dusk, veil.dusk },
        { "the system asks for contrast", { .systemContrast = true }, *line.duskHighContrast, *veil.duskHighContrast },
        { "only we do", { .own = { .increaseContrast = true } }, *line.duskHighContrast, *veil.duskHighContrast },
        { "the system asks for less transparency", { .systemTransparency = true }, line.dusk, *veil.duskSolid },
        { "only we do", { .own = { .reduceTransparency = true } }, line.dusk, *veil.duskSolid },
        { "each asks for one", { .systemContrast = true, .own = { .reduceTransparency = true } },
            *line.duskHighContrast, *veil.duskSolid },
        { "motion and accent change no colour", { .own = { .reduceMotion = true, .usesPersonalAccent = true } },
            line.dusk, veil.dusk },
    };
    for (const auto& c : cases) {
        const auto environment = environmentWith(ColorScheme::dark, c.setting);
        EXPECT_EQ(Palette::line.resolve(environment), c.line) << c.name;
        EXPECT_EQ(Palette::veil.resolve(environment), c.veil) << c.name;
    }
    EXPECT_EQ(Palette::bg.resolve(Environment {}), Tokens::Color::bg.dawn);
}

TEST(DynamicColors, resolveAnewForWhateverTheyAreAskedFor)
{
    const auto plain = Palette::veil.nsColor();
    const auto solid = Palette::veil.solid();
    EXPECT_EQ(plain.name(), "orvel.veil");
    EXPECT_EQ(solid.name(), "orvel.veil.solid");
    EXPECT_EQ(Palette::surface2.nsColor().name(), "orvel.surface-2");
    for (const bool dark : { false, true }) {
        EXPECT_EQ(plain.rgba({ .dark = dark, .increaseContrast = true }).alpha, 0.96);
        EXPECT_EQ(plain.rgba({ .dark = dark, .reduceTransparency = true }).alpha, 1);
        EXPECT_EQ(solid.rgba({ .dark = dark }).alpha, 1);
        EXPECT_EQ(solid.rgba({ .dark = dark, .increaseContrast = true }).alpha, 1);
    }
    // A colour without a solid variant still answers to contrast.
    EXPECT_EQ(Palette::line.solid().rgba({ .dark = true, .increaseContrast = true }).alpha, 0.2);
    EXPECT_NE(plain, solid);
}

TEST(IdentityTones, areStoredByTheirNames)
{
    for (const auto tone : allCases<IdentityTone>()) {
        EXPECT_EQ(fromRawValue<IdentityTone>(rawValue(tone)), tone);
        EXPECT_EQ(Palette::identity(tone).name, "block-" + std::string(rawValue(tone)));
        EXPECT_EQ(toneOrLavender(rawValue(tone)), tone);
    }
    EXPECT_EQ(toneOrLavender("../etc"), IdentityTone::lavender);
    EXPECT_EQ(color(IdentityTone::mauve).pair, Tokens::Color::blockMauve);
}

TEST(PressedCapsuleFill, movesTowardsItsBackground)
{
    const auto light = PressedCapsuleFill {}.resolve(environmentWith(ColorScheme::light, {}));
    EXPECT_NEAR(light.red, 0.26494, 5e-6);
    EXPECT_NEAR(light.green, 0.24426, 5e-6);
    EXPECT_NEAR(light.blue, 0.31325, 5e-6);
    const auto dark = PressedCapsuleFill {}.resolve(environmentWith(ColorScheme::dark, {}));
    EXPECT_NEAR(dark.red, 0.9529 * 0.92, 1e-6);
    EXPECT_EQ(dark.alpha, 1);
}

TEST(PressedCapsuleFill, knowsContrastAndNotTransparency)
{
    const Tokens::ColorPair pair {
        .dusk = { 0.5, 0.5, 0.5, 0.4 },
        .dawn = { 0.5, 0.5, 0.5, 0.4 },
        .duskHighContrast = RGBA { 2, 0, 0, 0.7 },
        .duskSolid = RGBA { 0, 0, 0, 1 },
    };
    EXPECT_EQ(pressed(pair, { .dark = true, .reduceTransparency = true }), (RGBA { 0.46, 0.46, 0.46, 0.4 }));
    EXPECT_EQ(
        pressed(pair, { .dark = true, .increaseContrast = true, .reduceTransparency = true }), (RGBA { 1, 0, 0, 0.7 }));
    EXPECT_EQ(pressed(pair, { .increaseContrast = true }), (RGBA { 0.56, 0.56, 0.56, 0.4 }));
}
