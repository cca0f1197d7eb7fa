#include "OrvelCopy/Checks/TableCheck.h"

#include <gmock/gmock.h>
#include <random>

#include "Tests/OrvelCopy/TableBytes.h"

using namespace orvel::Copy;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string germanRule = "Plural-Forms: nplurals=2; plural=(n != 1);\n";
const std::string frenchRule = "Plural-Forms: nplurals=2; plural=(n > 1);\n";
const std::string japaneseRule = "Plural-Forms: nplurals=1; plural=0;\n";
const std::string arabicRule = "Plural-Forms: nplurals=6; plural=(n==0 ? 0 : n==1 ? 1 : n==2 ? 2 : n%100>=3 && "
                               "n%100<=10 ? 3 : n%100>=11 ? 4 : 5);\n";

ListedText text(const std::string& key, bool isCounted = false, const std::string& member = "member",
    const std::string& namespace_ = "Sheets")
{
    return { namespace_, member, key, false, isCounted };
}

std::vector<TableFault> faultsOf(
    const std::map<std::string, std::string>& entries, std::vector<ListedText> texts, std::string_view language = "de")
{
    return tableFaults(MoTable::read(tableBytes(entries)).value(), texts, language);
}

std::vector<std::string> whats(const std::vector<TableFault>& faults)
{
    std::vector<std::string> whats;
    for (const auto& fault : faults)
        whats.push_back(fault.what);
    return whats;
}

/// One translation of one key, and all that is wrong with it.
struct Case {
    std::string language, key, translation;
    std::vector<std::string> faults;
};

void expectEach(const std::vector<Case>& cases)
{
    for (const auto& c : cases)
        EXPECT_EQ(whats(faultsOf({ { c.key, c.translation } }, { text(c.key) }, c.language)), c.faults)
            << c.translation;
}

}

TEST(TableCheck, wantsEveryValueAsItsKind)
{
    expectEach({
        { "de", "Until %@ · %@ left", "noch %2$@ · bis %1$@", {} },
        { "de", "%lld of %lld", "%lld von %lld", {} },
        { "de", "%@ needs %@", "%1$@ und %1$@ brauchen %2$@", {} },
        { "de", "until %@", "bis %lld", { "has %lld for value 1, which is %@" } },
        { "de", "%@ in %lld", "%lld in %@",
            { "has %lld for value 1, which is %@", "has %@ for value 2, which is %lld" } },
        { "de", "until %@", "bis", { "leaves out value 1, %@" } },
        { "de", "until %@", "bis %2$@", { "puts in value 2 of 1", "leaves out value 1, %@" } },
        { "de", "%@ – %@", "%@ – %@ %@", { "puts in value 3 of 2" } },
        { "de", "%@ – %@", "%2$@ – %@", { "numbers some of its values and not the others" } },
        { "de", "until %@", "bis %@ 100%", { "has a percent sign that means nothing (a plain one is %%)" } },
        { "de", "%lld%% done", "%lld% fertig", { "has a percent sign that means nothing (a plain one is %%)" } },
        { "de", "Focus", "Fokus %@", { "has %@, and there is no value to put in" } },
        { "de", "100% yours", "100%% deins", { "shows both signs of %%, since no value is put in" } },
        { "de", "100% yours", "100% deins", {} },
    });
}

TEST(TableCheck, wantsWhatStandsAtTheEnds)
{
    expectEach({
        { "de", "Edit…", "Bearbeiten…", {} },
        { "de", "Edit…", "Bearbeiten", { "has lost the ellipsis (…) at its end" } },
        { "de", "Edit…", "Bearbeiten...", { "has lost the ellipsis (…) at its end" } },
        { "de", "Done.", "Fertig", { "has lost the full stop at its end" } },
        { "ja", "Done.", "完了しました。", {} },
        { "ja", "How do you feel?", "気分はどうですか。", {} },
        { "ja", "How do you feel?", "気分。", { "has lost the question mark at its end" } },
        { "ar", "How do you feel?", "كيف الحال؟", {} },
        { "de", "Say “Yes.”", "Sag „Ja.“", {} },
        { "de", "No “%@”", "Kein „%@“", {} },
        { "de", "%@ ·", "%@", { "has lost the joint (·) at its end" } },
        { "de", "press ", "drücke", { "ends with other spaces than its key" } },
        { "de", "press", " drücke", { "begins with other spaces than its key" } },
    });
}

TEST(TableCheck, knowsWhatALanguageWrites)
{
    expectEach({
        { "de", "%lld\u00A0min", "%lld min", { "has lost a no-break space" } },
        { "fr", "%lld\u00A0min", "%lld\u202Fmin", {} },
        { "ja", "%lld\u00A0min", "%lld分", {} },
        { "fr", "Now?", "Maintenant ?", { "has no no-break space before ?" } },
        { "fr-CA", "Now: “%@”", "Maintenant\u00A0: «%@»",
            { "has no no-break space before »", "has no no-break space after «" } },
        { "fr", "For now: “%@”; 9:41?!", "Maintenant\u00A0: «\u00A0%@\u00A0»\u202F; 9:41\u202F?!", {} },
        { "de", "Now?", "Jetzt?", {} },
        { "es", "Now?", "Ahora?", { "has ? without ¿" } },
        { "es", "Now?", "¿Ahora?", {} },
        { "ar", "%@, %@", "%@, %@", { "has , of another script" } },
        { "ar", "%@, %@", "%@، %@", {} },
        { "ar", "until %@", "حتى \u2068%@\u2069", { "has a direction mark, which the program sets" } },
        { "fr", "%@’s orb", "l'orbe de %@", { "has a typewriter’s quotation mark or apostrophe" } },
    });
}

TEST(TableCheck, givesATextTheRoomOfItsPlace)
{
    struct Place {
        std::string_view name;
        ListedText text;
        std::size_t most;
    };
    const Place places[] = {
        { "on a widget", text("Next", false, "next", "Widgets"), 12 },
        { "on a button", text("Next"), 14 },
        { "a menu item", text(std::string(30, 'x'), false, "item", "Menus"), 60 },
        { "a longer label on a widget", text(std::string(30, 'x'), false, "label", "Widgets"), 42 },
        { "a longer button", text(std::string(30, 'x')), 48 },
        { "a sentence", text(std::string(49, 'x') + '.'), 90 },
        { "a value takes no room", text("until %@", false, "until", "Widgets"), 14 },
    };
    for (const auto& [name, listed, most] : places) {
        const auto end = listed.key.ends_with('.') ? "."s : listed.key.contains("%@") ? "%@"s : ""s;
        const auto shown = end == "%@" ? 0 : end.size();
        const auto fits = std::string(most - shown, 'y') + end;
        EXPECT_THAT(faultsOf({ { listed.key, fits } }, { listed }), IsEmpty()) << name;
        EXPECT_EQ(faultsOf({ { listed.key, 'y' + fits } }, { listed }).size(), 1U) << name;
    }
    const auto spoken = text("off", false, "focusOffSpoken", "Controls");
    EXPECT_THAT(faultsOf({ { "off", std::string(200, 'y') } }, { spoken }), IsEmpty());
    EXPECT_THAT(whats(faultsOf({ { "Next", "次の集中時間です" } }, { places[0].text }, "ja")),
        ElementsAre("is 16 columns long, and there is room for 12"));
}

TEST(TableCheck, wantsEveryPluralFormWithItsNumber)
{
    struct Forms {
        std::string_view name, language;
        std::string rule, forms;
        std::vector<std::string> faults;
    };
    const Forms cases[] = {
        { "all forms", "de", germanRule, "%lld App\0%lld Apps"s, {} },
        { "a form for one number only", "de", germanRule, "eine App\0%lld Apps"s, {} },
        { "a form for 0 and 1", "fr", frenchRule, "une app\0%lld apps"s, { "leaves out value 1, %lld" } },
        { "three forms for one number each", "ar", arabicRule, "لا\0تطبيق\0تطبيقان\0%lld أ\0%lld ب\0%lld ج"s, {} },
        { "one form", "ja", japaneseRule, "%lld個", {} },
        { "the only form without its number", "ja", japaneseRule, "個", { "leaves out value 1, %lld" } },
        { "too few forms", "de", germanRule, "%lld App", { "has 1 of 2 forms that can be shown" } },
        { "an empty form", "de", germanRule, "%lld App\0"s, { "has 1 of 2 forms that can be shown" } },
        { "a form in another encoding", "de", germanRule, "%lld \xC4pp\0%lld Apps"s,
            { "has 1 of 2 forms that can be shown" } },
        { "a fault in the second form", "de", germanRule, "%lld App\0%@ Apps"s,
            { "has %@ for value 1, which is %lld" } },
    };
    for (const auto& c : cases) {
        const auto faults =
            faultsOf({ { "", c.rule }, { inflected("%lld apps"), c.forms } }, { text("%lld apps", true) }, c.language);
        EXPECT_EQ(whats(faults), c.faults) << c.name;
    }
}

TEST(TableCheck, tellsOfATableWithoutAUsableRule)
{
    for (const auto& [rule, what] : {
             std::pair("Plural-Forms: nonsense\n",
                 "states its Plural-Forms in a way that is no rule, so that nothing is inflected"),
             std::pair("Plural-Forms: nplurals=2; plural=n;\n", "has no plural form for 2"),
             std::pair("Plural-Forms: nplurals=2; plural=1/(n-1);\n", "has no plural form for 1"),
         }) {
        const auto faults = faultsOf({ { "", rule }, { "Now", "Jetzt" } }, { text("Now") });
        EXPECT_EQ(faults, (std::vector<TableFault> { { .members = {}, .key = "", .form = "", .what = what } }));
    }
}

TEST(TableCheck, namesAKeyOnceWithAllItsMembers)
{
    const std::vector texts { text("Gentle", false, "gentle", "Blocks"), text("Now", false, "now", "Widgets"),
        text("Gentle", false, "gentle", "Widgets"), text("Gentle", false, "gentle", "Blocks") };
    const auto faults = faultsOf({ { "Gentle", std::string(15, 'y') } }, texts);
    EXPECT_EQ(faults,
        (std::vector<TableFault> {
            { .members = { "Blocks.gentle", "Widgets.gentle" },
                .key = "Gentle",
                .form = std::string(15, 'y'),
                .what = "is 15 columns long, and there is room for 14" }, // a widget has less room than a page
            { .members = { "Widgets.now" }, .key = "Now", .form = "", .what = "is missing" },
        }));
}

/// Whatever a file holds, the check ends with an answer; the sanitizers watch the rest.
TEST(TableCheck, survivesDamagedTables)
{
    const auto whole = tableBytes({ { "", "Language: fr\n" + frenchRule }, { "until %@", "jusqu’à %@" },
        { inflected("%lld apps"), "%lld app\0%lld apps"s }, { "Now?", "Maintenant\u00A0?" } });
    const std::vector texts { text("until %@"), text("%lld apps", true), text("Now?") };
    ASSERT_THAT(tableFaults(MoTable::read(whole).value(), texts, "fr"), IsEmpty());
    std::mt19937 random(20260302);
    std::size_t found = 0;
    for (auto round = 0; round < 1000; ++round) {
        auto damaged = whole;
        for (auto damage = 0; damage < 3; ++damage)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        if (const auto table = MoTable::read(damaged))
            found += tableFaults(*table, texts, "fr").empty() ? 0 : 1;
    }
    EXPECT_GT(found, 300U);
}
