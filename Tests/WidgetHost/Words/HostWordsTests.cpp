#include "WidgetHost/Words/HostWords.h"

#include <gmock/gmock.h>

#include "OrvelCopy/Checks/TableCheck.h"
#include "OrvelCopy/Lookup/StringTables.h"
#include "OrvelPlatform/Base/ResourceBundle.h"

using namespace orvel;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

const Copy::StringTables& tables()
{
    static const int inThisModule = 0;
    static const Copy::StringTables tables(resourceBundle("OrvelKit_WidgetHost", &inThisModule).resources() / "locale");
    return tables;
}

}

TEST(HostWords, areTranslatedInEveryLanguageOfTheCatalogue)
{
    EXPECT_THAT(tables().languages(), UnorderedElementsAre("ar", "de", "es", "fr", "ja"));
    const auto texts = Copy::listedTexts();
    EXPECT_GT(texts.size(), 20u);
    for (const auto& name : tables().languages()) {
        const auto locale = Locale::named(name);
        const auto table = Copy::readTable(tables().language({ &*locale, 1 }).file());
        ASSERT_TRUE(table) << name;
        for (const auto& fault : Copy::tableFaults(*table, texts, name))
            ADD_FAILURE() << name << ": " << fault.key << ": " << fault.form << " " << fault.what;
    }
}

TEST(HostWords, followTheLanguagesThatAreAskedFor)
{
    struct Case {
        std::string_view name, languages, removeWidget;
        bool isRightToLeft;
    };
    const Case cases[] = {
        { "none is English", "", "Remove Widget", false },
        { "a country's variant", "de_AT.UTF-8", "Widget entfernen", false },
        { "the first that has words", "nl:fr_CA:de", "Retirer le widget", false },
        { "English before another", "en_GB:de", "Remove Widget", false },
        { "from the right", "ar", "إزالة الأداة", true },
        { "no language at all", "\xff!", "Remove Widget", false },
    };
    for (const auto& c : cases) {
        const HostWords words { std::string(c.languages) };
        EXPECT_EQ(words.removeWidget(), c.removeWidget) << c.name;
        EXPECT_EQ(words.isRightToLeft(), c.isRightToLeft) << c.name;
    }
}

TEST(HostWords, putValuesWhereTheLanguageWantsThem)
{
    EXPECT_EQ(HostWords("ja").addSpoken("状況", "中"), "状況（中）を追加");
    EXPECT_EQ(HostWords("").notUpToDate("09:05"), "Not up to date since 09:05");
    EXPECT_EQ(HostWords("").sizeName("systemWide"), "systemWide");
}
