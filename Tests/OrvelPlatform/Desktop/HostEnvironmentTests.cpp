#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <gio/gio.h>

#include "OrvelPlatform/Desktop/GlibHandles.h"
#include "OrvelPlatform/Desktop/HostEnvironmentCoding.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"

namespace orvel {

namespace {

using testing::HasSubstr;

Answer<HostEnvironment> read(const char* dictionary)
{
    const VariantHandle value(g_variant_parse(G_VARIANT_TYPE_VARDICT, dictionary, nullptr, nullptr, nullptr));
    return hostEnvironment(value.get());
}

TEST(HostEnvironment, survivesTheWayThroughTheBus)
{
    const HostEnvironment whole {
        .family = "systemLarge",
        .isPreview = true,
        .renderingMode = "accented",
        .colorScheme = "dark",
        .contrast = "increased",
        .reduceMotion = false,
        .reduceTransparency = true,
        .personalAccent = true,
        .textScale = 0.5,
        .biggerText = 4,
        .locale = Locale::named("de_DE.UTF-8"),
        .language = "sr@latin:de",
        .timeZone = TimeZone::forSetting("CET-1CEST,M3.5.0,M10.5.0/3"),
        .scale = 4.0,
        .background = false,
        .format = PictureFormat::png,
    };
    for (const auto& environment : { whole, HostEnvironment {} }) {
        const VariantHandle value(g_variant_ref_sink(environmentValue(environment)));
        const auto back = hostEnvironment(value.get());
        ASSERT_TRUE(back) << back.error().sentence;
        EXPECT_EQ(*back, environment);
    }
}

TEST(HostEnvironment, isKeptAsItIsWhicheverWereAskedInBefore)
{
    EnvironmentValues values;
    for (int round = 0; round < 2; ++round) {
        for (int size = 0; size < 40; ++size) {
            const HostEnvironment environment { .family = std::to_string(size % 25), .scale = 1.0 + size % 2 };
            EXPECT_EQ(hostEnvironment(values.of(environment)), environment) << size;
            EXPECT_EQ(values.of(environment), values.of(environment)) << "not made anew";
        }
    }
}

TEST(HostEnvironment, takesNumbersOfAnyTypeAndPassesOverWhatItDoesNotKnow)
{
    const auto environment =
        read("{'scale': <byte 2>, 'textScale': <int64 1>, 'biggerText': <uint64 3>, 'colour': <'x'>, 'language': <''>, "
             "'family': <'widest'>}");
    ASSERT_TRUE(environment);
    EXPECT_EQ(environment->scale, 2);
    EXPECT_EQ(environment->textScale, 1);
    EXPECT_EQ(environment->biggerText, 3);
    EXPECT_EQ(environment->language, "");
    EXPECT_EQ(environment->family, "widest");
}

TEST(HostEnvironment, refusesWhatIsWrongAndNamesTheKey)
{
    struct Case {
        const char* dictionary;
        const char* key;
    };
    const Case cases[] = {
        { "{'family': <1>}", "family" },
        { "{'isPreview': <1>}", "isPreview" },
        { "{'renderingMode': <'FullColor'>}", "renderingMode" },
        { "{'colorScheme': <'dusk'>}", "colorScheme" },
        { "{'contrast': <true>}", "contrast" },
        { "{'reduceMotion': <'no'>}", "reduceMotion" },
        { "{'textScale': <0.49>}", "textScale" },
        { "{'textScale': <'1'>}", "textScale" },
        { "{'textScale': <nan>}", "textScale" },
        { "{'scale': <inf>}", "scale" },
        { "{'scale': <-inf>}", "scale" },
        { "{'scale': <0.5>}", "scale" },
        { "{'scale': <4.01>}", "scale" },
        { "{'scale': <<2.0>>}", "scale" },
        { "{'biggerText': <5>}", "biggerText" },
        { "{'biggerText': <-1>}", "biggerText" },
        { "{'biggerText': <1.0>}", "biggerText" },
        { "{'biggerText': <uint64 18446744073709551615>}", "biggerText" },
        { "{'locale': <'de DE'>}", "locale" },
        { "{'locale': <'../../etc/passwd'>}", "locale" },
        { "{'language': <'de:../x'>}", "language" },
        { "{'timeZone': <''>}", "timeZone" },
        { "{'timeZone': <'Europe/Nowhere'>}", "timeZone" },
        { "{'timeZone': <'../../../etc/localtime'>}", "timeZone" },
        { "{'timeZone': <'/etc/localtime'>}", "timeZone" },
        { "{'background': <''>}", "background" },
        { "{'format': <'jpeg'>}", "format" },
        { "{'isPreview': <true>, 'format': <'PNG'>}", "format" },
    };
    for (const auto& c : cases) {
        const auto environment = read(c.dictionary);
        ASSERT_FALSE(environment) << c.dictionary;
        EXPECT_EQ(environment.error().kind, RequestFault::Kind::badArgument) << c.dictionary;
        EXPECT_THAT(environment.error().sentence, HasSubstr(c.key));
    }
    const auto longName = "{'locale': <'de" + std::string(1U << 20U, '-') + "'>}";
    EXPECT_FALSE(read(longName.c_str()));
}

}

}
