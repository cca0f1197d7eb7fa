#include "OrvelCopy/Lookup/Lookup.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

#include "OrvelCopy/Copy.h"
#include "OrvelCopy/Lookup/Listing.h"
#include "Tests/Support/LocaleVariables.h"

using namespace orvel;
using namespace orvel::Copy;

namespace {

using Values = std::map<std::string, std::string>;

const auto german = Locale::named("de_AT.UTF-8");

// Constants of the tests' own, so that no test has what another has read.
std::string_view next()
{
    return constant(KEY("Next"));
}
std::string_view paused()
{
    return constant(KEY("Paused"));
}
std::string_view calm()
{
    return constant(KEY("Calm"));
}
std::string until(std::string_view time)
{
    return localized(KEY("until %@"), time);
}
std::string_view untilNoon()
{
    return constant(KEY("until %@"), "12:00");
}
std::string_view untilNight()
{
    return constant(KEY("until %@"), "22:00");
}

}

TEST(Lookup, ofConstantsKeepsTheFirstAndOfFunctionsDoesNot)
{
    {
        const LocaleVariables variables(Values { { "LANG", "de_DE.UTF-8" } });
        EXPECT_EQ(next(), "Als Nächstes");
        EXPECT_EQ(until("9:00"), "bis 9:00");
    }
    {
        const LocaleVariables variables(Values { { "LANG", "it_IT.UTF-8" } });
        EXPECT_EQ(next(), "Als Nächstes");
        EXPECT_EQ(until("9:00"), "until 9:00");
        EXPECT_EQ(paused(), "Paused");
    }
    const LocaleVariables variables(Values { { "LC_MESSAGES", "de" }, { "LANG", "fr" } });
    EXPECT_EQ(paused(), "Paused");
    EXPECT_EQ(until("9:00"), "bis 9:00");
}

TEST(Lookup, inALanguageIsWhollyInItAndLeavesTheProcessAlone)
{
    const LocaleVariables variables(Values { { "LANG", "C" } });
    const auto inGerman = inLanguage(german, [] { return std::string(calm()) + " " + until("9:00"); });
    EXPECT_EQ(inGerman, "Ruhe bis 9:00");
    EXPECT_EQ(calm(), "Calm") << "kept now, and not the request's";
    inLanguage(german, [] {
        EXPECT_EQ(calm(), "Ruhe");
        EXPECT_EQ(inLanguage(Locale::named("en_GB"), [] { return calm(); }), "Calm");
        inLanguage(std::nullopt, [] { EXPECT_EQ(calm(), "Ruhe"); });
        inLanguage(Locale::named("tlh"), [] { EXPECT_EQ(until("9:00"), "until 9:00"); });
        EXPECT_EQ(until("9:00"), "bis 9:00");
        std::jthread([] { EXPECT_EQ(until("9:00"), "until 9:00"); });
    });
    EXPECT_THROW(inLanguage(german, []() { throw 1; }), int);
    EXPECT_EQ(until("9:00"), "until 9:00");
}

TEST(Lookup, ofConstantsWithAValueKeepsEachInEachLanguage)
{
    const LocaleVariables variables(Values { { "LANG", "C" } });
    const auto inGerman = inLanguage(german, [] { return untilNoon(); });
    EXPECT_EQ(untilNoon(), "until 12:00");
    EXPECT_EQ(untilNight(), "until 22:00") << "the same key at another place";
    EXPECT_EQ(inLanguage(german, [] { return untilNight(); }), "bis 22:00");
    const LocaleVariables later(Values { { "LANG", "de" } });
    EXPECT_EQ(untilNoon(), "until 12:00") << "kept";
    EXPECT_EQ(inGerman, "bis 12:00") << "still there";
}

TEST(Lookup, servesManyThreads)
{
    const LocaleVariables variables(Values { { "LANG", "de" } });
    constexpr auto count = 8;
    std::latch start(count);
    std::vector<std::jthread> threads;
    for (auto thread = 0; thread < count; ++thread) {
        threads.emplace_back([&start, thread] {
            const auto now = [] { return constant(KEY("Now")); };
            const auto off = [] { return constant(KEY("off")); };
            start.arrive_and_wait();
            for (auto round = 0; round < 100; ++round) {
                EXPECT_EQ(now(), "Jetzt");
                const auto english = (thread + round) % 2 == 0;
                inLanguage(english ? Locale::english() : german, [&] {
                    EXPECT_EQ(now(), english ? "Now" : "Jetzt");
                    EXPECT_EQ(off(), english ? "off" : "aus");
                    EXPECT_EQ(untilNoon(), english ? "until 12:00" : "bis 12:00");
                    EXPECT_EQ(until("9"), english ? "until 9" : "bis 9");
                });
                EXPECT_EQ(off(), "aus");
            }
        });
    }
}

TEST(Lookup, neverReadsWhatIsInserted)
{
    const LocaleVariables variables(Values {});
    for (const std::string_view name :
        { "50%@", "%lld %n %s", "%1$@", "100%", "“x”\n’", "👩‍👩‍👧", "שלום", "" }) {
        EXPECT_EQ(until(name), "until " + std::string(name));
        EXPECT_EQ(inLanguage(german, [&] { return until(name); }), "bis " + std::string(name));
    }
}

TEST(Lookup, writesWholeNumbersPlainly)
{
    const LocaleVariables variables(Values {});
    const auto minutes = [](auto count) { return localized(COUNTED("%lld min left"), count); };
    EXPECT_EQ(minutes(1234567), "1234567 min left");
    EXPECT_EQ(minutes(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808 min left");
    EXPECT_EQ(inLanguage(german, [&] { return minutes(1234567); }), "noch 1234567\u00A0min");
}

TEST(Listing, namesMembersAndTheirKeys)
{
    const auto texts = listedTexts();
    const auto has = [&](const ListedText& wanted) { return std::ranges::find(texts, wanted) != texts.end(); };
    EXPECT_TRUE(has({ "Widgets", "now", "Now", true, false }));
    EXPECT_TRUE(has({ "Widgets", "untilLeft", "Until %@ · %@ left", false, false }));
    EXPECT_TRUE(has({ "Blocks", "apps", "1 app", false, false }));
    EXPECT_TRUE(has({ "Blocks", "apps", "%lld apps", false, true }));
    EXPECT_TRUE(has({ "Copy", "focusName", "Focus", true, false }));
    EXPECT_TRUE(has({ "Format", "remaining", "under a minute", false, false }));
}
