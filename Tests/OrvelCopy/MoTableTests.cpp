#include "OrvelCopy/Lookup/MoTable.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "OrvelPlatform/Base/UTF8.h"
#include "Tests/OrvelCopy/TableBytes.h"

using namespace orvel;
using namespace orvel::Copy;
using namespace std::string_literals;

namespace {

const std::string slavicRule = "Plural-Forms: nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && "
                               "(n%100<10 || n%100>=20) ? 1 : 2);\n";

std::string sampleBytes()
{
    return tableBytes({
        { "", "Content-Type: text/plain; charset=UTF-8\n" + slavicRule },
        { "Now", "Сейчас" },
        { "Nowhere", "Нигде" },
        { "empty", "" },
        { "not UTF-8", "\xFF\xFE" },
        { inflected("%lld apps"), "%lld приложение\0%lld приложения\0%lld приложений"s },
        { "%lld m", "%lld м" },
    });
}

using Text = std::optional<std::string_view>;

}

TEST(MoTables, findTextsByTheirWholeKey)
{
    const auto table = MoTable::read(sampleBytes()).value();
    EXPECT_EQ(table.text("Now"), "Сейчас");
    EXPECT_EQ(table.text("Nowhere"), "Нигде");
    for (const auto* missing : { "No", "Nower", "now", "zzz", "empty", "not UTF-8" })
        EXPECT_EQ(table.text(missing), Text()) << missing;
}

TEST(MoTables, inflectByTheirOwnRule)
{
    const auto table = MoTable::read(sampleBytes()).value();
    struct Case {
        std::int64_t count;
        std::string_view text;
    };
    const Case cases[] = {
        { 1, "%lld приложение" },
        { 2, "%lld приложения" },
        { 5, "%lld приложений" },
        { 0, "%lld приложений" },
        { 11, "%lld приложений" },
        { 21, "%lld приложение" },
        { -1, "%lld приложение" },
        { std::numeric_limits<std::int64_t>::min(), "%lld приложений" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(table.text("%lld apps", c.count), c.text) << c.count;
    EXPECT_EQ(table.text("%lld m", 1), "%lld м") << "a key that the table does not inflect";
    EXPECT_EQ(table.forms("%lld apps").size(), 3U);
}

TEST(MoTables, areReadInEitherByteOrder)
{
    auto bytes = sampleBytes();
    const auto count = static_cast<unsigned char>(bytes[8]);
    for (std::size_t at = 0; at < 28 + 16U * count; at += 4)
        std::reverse(
            bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.begin() + static_cast<std::ptrdiff_t>(at + 4));
    EXPECT_EQ(MoTable::read(bytes).value().text("Now"), "Сейчас");
}

TEST(MoTables, withoutAUsableRuleLeaveInflectedTextsOut)
{
    struct Case {
        std::string_view name;
        std::string header;
        Text one, two;
    };
    const Case cases[] = {
        { "no header", "X: y\n", "ein", "zwei" },
        { "no rule in the field", "Plural-Forms: nonsense\n", {}, {} },
        { "a form that there is not", "Plural-Forms: nplurals=2; plural=n;\n", "zwei", {} },
        { "more forms than texts", "Plural-Forms: nplurals=3; plural=n;\n", "zwei", {} },
        { "division by zero", "Plural-Forms: nplurals=2; plural=1/(n-1);\n", {}, "zwei" },
    };
    for (const auto& c : cases) {
        const auto table =
            MoTable::read(tableBytes({ { "", c.header }, { inflected("%lld"), "ein\0zwei"s }, { "x", "y" } })).value();
        EXPECT_EQ(table.text("%lld", 1), c.one) << c.name;
        EXPECT_EQ(table.text("%lld", 2), c.two) << c.name;
        EXPECT_EQ(table.text("x"), "y") << c.name;
    }
}

TEST(MoTables, thatAreNoTablesAreAbsent)
{
    const auto bytes = sampleBytes();
    EXPECT_FALSE(MoTable::read(""));
    EXPECT_FALSE(MoTable::read("msgid \"\"\nmsgstr \"\"\n# a table that nobody compiled"));
    EXPECT_FALSE(MoTable::read(bytes.substr(0, 27)));
    auto manyEntries = bytes;
    manyEntries[11] = '\x7F';
    EXPECT_FALSE(MoTable::read(manyEntries));
    auto listOutside = bytes;
    listOutside[19] = '\x7F';
    EXPECT_FALSE(MoTable::read(listOutside));
    auto newerFormat = bytes;
    newerFormat[6] = 2;
    EXPECT_FALSE(MoTable::read(newerFormat));
}

/// Whatever a file holds, a text is absent or can be shown; the sanitizers watch the rest.
TEST(MoTables, thatAreDamagedGiveTextsThatCanBeShown)
{
    const auto whole = sampleBytes();
    const auto expectSafe = [](const std::string& bytes) {
        const auto table = MoTable::read(bytes);
        if (!table)
            return;
        for (const auto* key : { "Now", "%lld apps", "" }) {
            for (const auto& text : { table->text(key), table->text(key, 1), table->text(key, 1'000'000) })
                EXPECT_TRUE(!text || (!text->empty() && isUTF8(*text)));
        }
    };
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto cut = MoTable::read(whole.substr(0, size));
        const auto text = cut ? cut->text("Now") : std::nullopt;
        EXPECT_TRUE(!text || text == "Сейчас") << size;
        expectSafe(whole.substr(0, size));
    }
    std::mt19937 random(20260302);
    for (auto round = 0; round < 5000; ++round) {
        auto damaged = whole;
        for (auto damage = 0; damage < 3; ++damage)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        expectSafe(damaged);
    }
}
