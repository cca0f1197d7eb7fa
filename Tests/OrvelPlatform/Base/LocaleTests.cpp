#include "OrvelPlatform/Base/Locale.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

#include "Tests/Support/LocaleVariables.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

constexpr WallTime monday = std::chrono::local_days { std::chrono::year { 2026 } / 3 / 2 };

Locale locale(std::string_view name)
{
    const auto found = Locale::named(name);
    EXPECT_TRUE(found) << name;
    return found.value_or(Locale::english());
}

/// Versions of the formats' data differ in the space before AM.
std::string withPlainSpaces(std::string text)
{
    for (const std::string_view space : { "\u202F", "\u00A0" }) {
        for (auto at = text.find(space); at != std::string::npos; at = text.find(space))
            text.replace(at, space.size(), " ");
    }
    return text;
}

}

TEST(Locales, haveOneIdentifierInBothSpellings)
{
    struct Case {
        std::string_view name;
        std::optional<std::string> identifier;
    };
    const Case cases[] = {
        { "de_DE.UTF-8", "de-DE" },
        { "de-DE", "de-DE" },
        { "DE_de", "de-DE" },
        { "de_AT@euro", "de-AT" },
        { "sr_RS@latin", "sr-Latn-RS" },
        { "uz@cyrillic", "uz-Cyrl" },
        { "ca_ES.utf8@valencia", "ca-ES-valencia" },
        { "zh-Hant-TW", "zh-Hant-TW" },
        { "en-GB-u-hc-h12", "en-GB-u-hc-h12" },
        { "en_GB-u-hc-h12", "en-GB-u-hc-h12" },
        { "es-419", "es-419" },
        { "C", "en" },
        { "C.UTF-8", "en" },
        { "POSIX", "en" },
        { "tlh-XX", "tlh-XX" },
        { "x-orvel", "und-x-orvel" },
        { "", std::nullopt },
        { ".UTF-8", std::nullopt },
        { "_DE", std::nullopt },
        { "de_", std::nullopt },
        { "de__DE", std::nullopt },
        { "de_DE.", std::nullopt },
        { "de_DE@", std::nullopt },
        { "d", std::nullopt },
        { "de DE", std::nullopt },
        { "../de", std::nullopt },
        { "de/../fr", std::nullopt },
        { "en-GB-u", std::nullopt },
        { "dé", std::nullopt },
        { "abcdefghi", std::nullopt },
        { std::string_view("de\0DE", 5), std::nullopt },
    };
    for (const auto& c : cases)
        EXPECT_EQ(Locale::named(c.name).transform([](auto found) { return found.identifier(); }), c.identifier)
            << c.name;
    EXPECT_FALSE(Locale::named("en-x-" + std::string(5000, 'a')));
    EXPECT_EQ(locale("de_DE.UTF-8"), locale("de-DE"));
}

TEST(Locales, ofTheProcessFollowItsVariables)
{
    struct Case {
        std::map<std::string, std::string> variables;
        std::string_view times;
        std::string words;
    };
    const Case cases[] = {
        { {}, "en", "" },
        { { { "LANG", "de_DE.UTF-8" } }, "de-DE", "de_DE.UTF-8" },
        { { { "LANG", "de_DE" }, { "LC_TIME", "en_GB" } }, "en-GB", "de_DE" },
        { { { "LANG", "de_DE" }, { "LC_MESSAGES", "fr_FR" } }, "de-DE", "fr_FR" },
        { { { "LANG", "de_DE" }, { "LC_ALL", "ja_JP" }, { "LC_TIME", "en_GB" } }, "ja-JP", "ja_JP" },
        { { { "LANG", "de_DE" }, { "LC_ALL", "" } }, "de-DE", "de_DE" },
        { { { "LANG", "de_AT" }, { "LANGUAGE", "nl:de" } }, "de-AT", "nl:de" },
        { { { "LANG", "C" }, { "LANGUAGE", "de" } }, "en", "" },
        { { { "LANGUAGE", "de" } }, "en", "" },
        { { { "LANG", "C.UTF-8" }, { "LANGUAGE", "de" } }, "en", "de" },
        { { { "LANG", "de_DE" }, { "LC_ALL", "POSIX" } }, "en", "" },
        { { { "LANG", "not a locale" } }, "en", "not a locale" },
    };
    for (const auto& c : cases) {
        const LocaleVariables variables(c.variables);
        EXPECT_EQ(Locale::current().identifier(), c.times);
        EXPECT_EQ(Locale::wordsSetting(), c.words);
    }
}

TEST(Locales, ofAWordsSettingLeaveOutWhatIsMalformed)
{
    std::vector<std::string> identifiers;
    for (const auto& preferred : Locale::preferred(":pt_BR.UTF-8:???::C:de:"))
        identifiers.push_back(preferred.identifier());
    EXPECT_EQ(identifiers, (std::vector<std::string> { "pt-BR", "en", "de" }));
}

TEST(Locales, haveParentsOfTheSameScript)
{
    struct Case {
        std::string_view name;
        std::vector<std::string> parents;
    };
    const Case cases[] = {
        { "de", { "de", "de-Latn-DE", "de-Latn" } },
        { "de_AT", { "de-AT", "de-Latn-AT", "de-Latn", "de" } },
        { "zh_TW", { "zh-TW", "zh-Hant-TW", "zh-Hant" } },
        { "zh_SG", { "zh-SG", "zh-Hans-SG", "zh-Hans", "zh" } },
        { "sr_RS@latin", { "sr-Latn-RS", "sr-Latn" } },
        { "ca_ES@valencia", { "ca-ES-valencia", "ca-ES", "ca-Latn-ES", "ca-Latn", "ca" } },
        { "en-GB-u-hc-h12", { "en-GB", "en-Latn-GB", "en-Latn", "en" } },
        { "qqq", { "qqq" } },
    };
    for (auto& c : cases) {
        const auto found = locale(c.name).languageAndParents();
        // What stands first and last decides; likely subtags between may grow with the data.
        EXPECT_EQ(found.front(), c.parents.front()) << c.name;
        for (const auto& parent : c.parents)
            EXPECT_NE(std::ranges::find(found, parent), found.end()) << c.name << " " << parent;
        EXPECT_EQ(found.size(), c.parents.size()) << c.name;
    }
}

TEST(Locales, writeTheTimeOfDayTheirWay)
{
    struct Case {
        std::string_view name, morning, afternoon, midnight;
    };
    const Case cases[] = {
        { "en_US", "9:05 AM", "9:05 PM", "12:00 AM" },
        { "en_GB", "09:05", "21:05", "00:00" },
        { "de", "09:05", "21:05", "00:00" },
        { "fr", "09:05", "21:05", "00:00" },
        { "ja", "9:05", "21:05", "0:00" },
        { "ar_EG", "٩:٠٥ ص", "٩:٠٥ م", "١٢:٠٠ ص" },
        { "fa", "۹:۰۵", "۲۱:۰۵", "۰:۰۰" },
        { "hi", "9:05 am", "9:05 pm", "12:00 am" },
        { "en-GB-u-hc-h12", "9:05 am", "9:05 pm", "12:00 am" },
        { "en-US-u-hc-h23", "09:05", "21:05", "00:00" },
        { "de-u-nu-bogus-ca-bogus", "09:05", "21:05", "00:00" },
        { "qqq-XX", "09:05", "21:05", "00:00" },
        { "zh-Hant", "上午9:05", "下午9:05", "上午12:00" },
        { "yo", "09:05", "21:05", "00:00" },
        { "de-US", "9:05 AM", "9:05 PM", "12:00 AM" },
        { "fr-CA", "09 h 05", "21 h 05", "00 h 00" },
    };
    for (const auto& c : cases) {
        const auto shown = locale(c.name);
        EXPECT_EQ(withPlainSpaces(shown.time(monday + 9h + 5min + 59s)), c.morning) << c.name;
        EXPECT_EQ(withPlainSpaces(shown.time(monday + 21h + 5min)), c.afternoon) << c.name;
        EXPECT_EQ(withPlainSpaces(shown.time(monday)), c.midnight) << c.name;
    }
}

TEST(Locales, showTheWallTimeWhateverTheZoneOfTheProcess)
{
    const auto british = locale("en_GB");
    // Clocks in London jump over this hour, and these are years before and after every table of zones.
    EXPECT_EQ(british.time(std::chrono::local_days { std::chrono::year { 2026 } / 3 / 29 } + 1h + 30min), "01:30");
    EXPECT_EQ(british.time(std::chrono::local_days { std::chrono::year { 1 } / 1 / 1 } + 7h), "07:00");
    EXPECT_EQ(british.time(std::chrono::local_days { std::chrono::year { 1582 } / 10 / 10 } + 7h), "07:00");
    EXPECT_EQ(british.time(std::chrono::local_days { std::chrono::year { 9999 } / 12 / 31 } + 23h + 59min), "23:59");
    EXPECT_EQ(british.time(std::chrono::local_days { std::chrono::year { 1969 } / 12 / 31 } + 24h - 1us), "23:59");
}

TEST(Locales, nameWeekdays)
{
    struct Case {
        std::string_view name, sunday, wednesday, veryShort;
    };
    const Case cases[] = {
        { "en_US", "Sun", "Wed", "S M T W T F S" },
        { "de", "So", "Mi", "S M D M D F S" },
        { "fr", "dim.", "mer.", "D L M M J V S" },
        { "ja", "日", "水", "日 月 火 水 木 金 土" },
        { "ar", "الأحد", "الأربعاء", "ح ن ث ر خ ج س" },
        { "fa", "یکشنبه", "چهارشنبه", "ی د س چ پ ج ش" },
        { "hi", "रवि", "बुध", "र सो मं बु गु शु श" },
    };
    for (const auto& c : cases) {
        const auto shown = locale(c.name);
        EXPECT_EQ(shown.abbreviatedWeekday(std::chrono::Sunday), c.sunday);
        EXPECT_EQ(shown.abbreviatedWeekday(std::chrono::Wednesday), c.wednesday);
        std::string symbols;
        for (const auto& symbol : shown.veryShortWeekdaySymbols())
            symbols += symbols.empty() ? symbol : " " + symbol;
        EXPECT_EQ(symbols, c.veryShort);
    }
}

TEST(Locales, joinNamesAsInASentence)
{
    struct Case {
        std::string_view locale;
        std::vector<std::string> names;
        std::string_view text;
    };
    const Case cases[] = {
        { "en_US", {}, "" },
        { "en_US", { "A" }, "A" },
        { "en_US", { "A", "B" }, "A and B" },
        { "en_US", { "A", "B", "C" }, "A, B, and C" },
        { "en_GB", { "A", "B", "C" }, "A, B and C" },
        { "en_GB", { "A", "B", "C", "D" }, "A, B, C and D" },
        { "de", { "A", "B", "C" }, "A, B und C" },
        { "es", { "Apps", "Internet" }, "Apps e Internet" },
        { "ja", { "A", "B", "C" }, "A、B、C" },
        { "en_GB", { "{1}", "50%@", "“x”’" }, "{1}, 50%@ and “x”’" },
        { "en_GB", { "👩‍👩‍👧", "עברית", "" }, "👩‍👩‍👧, עברית and " },
    };
    for (const auto& c : cases)
        EXPECT_EQ(locale(c.locale).list(c.names), c.text);
}

TEST(Locales, serveManyThreads)
{
    constexpr std::string_view names[] = { "en_GB", "de", "fa", "en_US" };
    std::vector<std::jthread> threads;
    for (auto thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&] {
            for (auto round = 0; round < 20; ++round) {
                for (const auto name : names)
                    EXPECT_FALSE(locale(name).time(monday).empty());
                EXPECT_EQ(locale("en_GB").time(monday + 9h), "09:00");
                EXPECT_EQ(locale("de").list(std::vector<std::string> { "A", "B" }), "A und B");
                EXPECT_EQ(locale("de").veryShortWeekdaySymbols()[1], "M");
                // More than are kept, so that they are dropped and made while others use them.
                (void)locale("en-x-" + std::to_string(round));
            }
        });
    }
}

TEST(Locales, haveTheirOwnCapitals)
{
    EXPECT_EQ(locale("en").uppercased("Paused – Ruhig"), "PAUSED – RUHIG");
    EXPECT_EQ(locale("de").uppercased("groß"), "GROSS");
    EXPECT_EQ(locale("tr").uppercased("şimdi"), "ŞİMDİ");
    EXPECT_EQ(locale("ja").uppercased("次は"), "次は");
}

TEST(Locales, keepWhatIsSlowToMake)
{
    const auto costOf = [](const auto& work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::steady_clock::now() - start;
    };
    // Each of these extensions makes its own formatters; the same locale asked for again has them.
    const auto makingEach = costOf([] {
        for (auto number = 0; number < 40; ++number)
            EXPECT_EQ(locale("en-GB-x-made" + std::to_string(number)).time(monday), "00:00");
    });
    const auto keeping = costOf([] {
        for (auto number = 0; number < 40; ++number)
            EXPECT_EQ(locale("en-GB").time(monday), "00:00");
    });
    EXPECT_LT(keeping, makingEach / 4);
}
