#include "OrvelCopy/Lookup/StringTables.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "OrvelCopy/Lookup/Lookup.h"
#include "Tests/OrvelCopy/TableBytes.h"

using namespace orvel;
using namespace orvel::Copy;
using namespace std::string_literals;

namespace {

namespace fs = std::filesystem;

constexpr Key until { "until %@", "", false };
constexpr Key apps { "%lld apps", "", true };

/// A folder of tables, each of which translates "until %@" to its own name and the value.
class Tables : public testing::Test {
protected:
    Tables() : folder(fs::temp_directory_path() / ("orvel-tables-" + std::to_string(::getpid())))
    {
        for (const auto* name : { "de", "de_CH", "zh_Hant", "zh", "sr@latin", "he", "pt_BR", "en_GB" })
            write(name, tableBytes({ { "until %@", name + " %@"s } }));
    }
    ~Tables() override { fs::remove_all(folder); }

    void write(const std::string& language, const std::string& bytes) const
    {
        const auto messages = folder / language / "LC_MESSAGES";
        fs::create_directories(messages);
        std::ofstream(messages / "Localizable.mo") << bytes;
    }

    static std::string text(const StringTables& tables, std::string_view preferred, const Key& key, Insertion value)
    {
        return Detail::composedText(key, { &value, 1 }, tables.language(Locale::preferred(preferred)));
    }

    fs::path folder;
};

}

TEST_F(Tables, areChosenByTheLocaleAndItsParents)
{
    struct Case {
        std::string_view preferred, text;
    };
    const Case cases[] = {
        { "de", "de 9:00" },
        { "de_AT.UTF-8", "de 9:00" },
        { "de-CH", "de_CH 9:00" },
        { "de-DE-u-hc-h12", "de 9:00" },
        { "zh_TW", "zh_Hant 9:00" },
        { "zh_HK", "zh_Hant 9:00" },
        { "zh_CN", "zh 9:00" },
        { "sr_RS@latin", "sr@latin 9:00" },
        { "sr_RS", "until 9:00" },
        { "pt_PT", "until 9:00" },
        { "pt_PT:de", "de 9:00" },
        { "it:en:de", "until 9:00" },
        { "en_US:de", "until 9:00" },
        { "en_GB", "en_GB 9:00" },
        { "", "until 9:00" },
        { "../de", "until 9:00" },
    };
    const StringTables tables(folder);
    for (const auto& c : cases)
        EXPECT_EQ(text(tables, c.preferred, until, "9:00"), c.text) << c.preferred;
}

TEST_F(Tables, fromRightToLeftIsolateAndEnglishStaysBare)
{
    const StringTables tables(folder);
    EXPECT_EQ(text(tables, "he_IL", until, "9:00"), "he \u20689:00\u2069");
    EXPECT_EQ(text(tables, "he_IL", { "ends %@", "", false }, "9:00"), "ends 9:00");
}

TEST_F(Tables, thatAreDamagedGiveEnglish)
{
    struct Case {
        std::string_view name;
        std::string bytes;
    };
    const Case cases[] = {
        { "empty", "" },
        { "no table", "nonsense" },
        { "cut off", tableBytes({ { "until %@", "bis %@" } }).substr(0, 50) },
        { "another kind of value", tableBytes({ { "until %@", "bis %lld" } }) },
        { "a value that there is not", tableBytes({ { "until %@", "bis %2$@" } }) },
        { "a conversion of printf", tableBytes({ { "until %@", "bis %n" } }) },
        { "not UTF-8", tableBytes({ { "until %@", "bis \xE4 %@" } }) },
        { "longer than any text", tableBytes({ { "until %@", std::string(100'000, 'x') } }) },
    };
    for (const auto& c : cases) {
        write("nl", c.bytes);
        EXPECT_EQ(text(StringTables(folder), "nl", until, "9:00"), "until 9:00") << c.name;
    }
    fs::remove(folder / "nl/LC_MESSAGES/Localizable.mo");
    fs::create_directories(folder / "nl/LC_MESSAGES/Localizable.mo");
    EXPECT_EQ(text(StringTables(folder), "nl", until, "9:00"), "until 9:00") << "a folder";
    EXPECT_EQ(text(StringTables(folder / "none"), "de", until, "9:00"), "until 9:00") << "no tables at all";
}

TEST_F(Tables, mayInflectWhatIsCounted)
{
    write("pl",
        tableBytes({ { "", "Plural-Forms: nplurals=2; plural=n!=1;\n" },
            { inflected("%lld apps"), "jedna aplikacja\0%1$lld aplikacji"s } }));
    const StringTables tables(folder);
    EXPECT_EQ(text(tables, "pl", apps, std::int64_t { 1 }), "jedna aplikacja");
    EXPECT_EQ(text(tables, "pl", apps, std::int64_t { 5 }), "5 aplikacji");
}
