#include "OrvelDesign/EnvironmentValues.h"

#include <gtest/gtest.h>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/SystemAccessibilityReader.h"

using namespace orvel;

static_assert(OrvelAccessibility {}.showsTexture());
static_assert(!OrvelAccessibility { .increaseContrast = true }.showsTexture());
static_assert(!OrvelAccessibility { .reduceTransparency = true }.showsTexture());
static_assert(OrvelAccessibility { .reduceMotion = true, .usesPersonalAccent = true }.showsTexture());

namespace {

/// A desktop that says what it is told to.
struct SaidSettings : SystemAccessibility {
    bool motion = false, transparency = false, contrast = false, accent = false;

    bool reduceMotion() const override { return motion; }
    bool reduceTransparency() const override { return transparency; }
    ColorSchemeContrast colorSchemeContrast() const override
    {
        return contrast ? ColorSchemeContrast::increased : ColorSchemeContrast::standard;
    }
    bool hasPersonalAccent() const override { return accent; }
};

}

TEST(EnvironmentValues, haveTheirDefaults)
{
    const Environment environment;
    EXPECT_EQ(environment.get<OrvelAccessibilityKey>(), OrvelAccessibility {});
    EXPECT_EQ(environment.get<OrvelBiggerTextKey>(), BiggerText::actualSize);
    EXPECT_FALSE(environment.get<OrvelSystemTextScaleKey>());
    EXPECT_FALSE(environment.get<OrvelSettingsLockedKey>());
    EXPECT_TRUE(environment.get<OrvelRendersNativeControlsKey>());
    EXPECT_EQ(environment.get<OrvelInteractionPreviewKey>(), InteractionPreview::none);
}

TEST(SystemAccessibilityReaders, takeEachSettingFromItsPlace)
{
    struct Case {
        bool SaidSettings::*said;
        bool OrvelAccessibility::*read;
    };
    const Case cases[] = {
        { &SaidSettings::motion, &OrvelAccessibility::reduceMotion },
        { &SaidSettings::transparency, &OrvelAccessibility::reduceTransparency },
        { &SaidSettings::contrast, &OrvelAccessibility::increaseContrast },
        { &SaidSettings::accent, &OrvelAccessibility::usesPersonalAccent },
    };
    const Environment content = Environment {}.with<OrvelAccessibilityKey>({ true, true, true, true });
    for (const auto& c : cases) {
        SaidSettings desktop;
        desktop.*c.said = true;
        OrvelAccessibility expected;
        expected.*c.read = true;
        const SystemAccessibilityReader reader(desktop);
        EXPECT_EQ(reader.read(), expected);
        EXPECT_EQ(reader.body(content).get<OrvelAccessibilityKey>(), expected);
    }
}

TEST(EnvironmentValues, anOptionIsOnWhenEitherSaysSo)
{
    Environment environment;
    environment.set<OrvelAccessibilityKey>({ .reduceTransparency = true });
    environment.set<ReduceMotionKey>(true);
    environment.set<ColorSchemeContrastKey>(ColorSchemeContrast::increased);
    EXPECT_EQ(effectiveAccessibility(environment), (OrvelAccessibility { true, true, true, false }));
    EXPECT_EQ(ColorFlags::in(environment), (ColorFlags { false, true, true }));

    // The system cannot force off what we ask for.
    const OrvelAccessibility own { true, true, true, true };
    EXPECT_EQ(effectiveAccessibility(Environment {}.with<OrvelAccessibilityKey>(own)), own);
}
