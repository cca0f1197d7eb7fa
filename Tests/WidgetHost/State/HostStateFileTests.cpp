#include "WidgetHost/State/HostStateFile.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <stdlib.h>

#include "Tests/TemporaryFolder.h"

using namespace orvel;
using testing::HasSubstr;
using testing::Optional;

namespace {

namespace fs = std::filesystem;

void put(const fs::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

const HostState two {
    .widgets = { { "a", "app.orvel.widget.status", "systemMedium", ChosenLook::dusk, WidgetPlace { "DP-1", -8, 40 } },
        { "b", "app.orvel.widget.breathe", "systemSmall", ChosenLook::automatic, std::nullopt } },
    .reducesTransparency = true,
    .biggerText = 2,
};

constexpr std::string_view bytesOfTwo =
    R"({"state":{"biggerText":2,"reducesTransparency":true,"widgets":[)"
    R"({"family":"systemMedium","id":"a","kind":"app.orvel.widget.status","look":"dusk",)"
    R"("place":{"output":"DP-1","x":-8,"y":40}},)"
    R"({"family":"systemSmall","id":"b","kind":"app.orvel.widget.breathe","look":"automatic"}]},"version":1})";

}

TEST(HostStateFile, keepsItsForm)
{
    const TemporaryFolder folder;
    HostStateFile file(folder / "orvel" / "widget-host.json");
    const auto first = file.read();
    EXPECT_EQ(first.state, HostState {});
    EXPECT_EQ(first.warning, std::nullopt) << "no file is no fault";

    ASSERT_TRUE(file.write(two));
    EXPECT_EQ(contents(folder / "orvel" / "widget-host.json"), bytesOfTwo);
    const auto again = file.read();
    EXPECT_EQ(again.state, two);
    EXPECT_EQ(again.warning, std::nullopt);
}

TEST(HostStateFile, takesWhatAPersonMayWrite)
{
    const TemporaryFolder folder;
    HostStateFile file(folder / "state");
    put(folder / "state",
        R"({ "version": 1, "state": { "biggerText": 9, "unknown": [],
             "widgets": [ { "id": "a", "kind": "k", "family": "f" } ] } })");
    const HostState expected { .widgets = { { "a", "k", "f", ChosenLook::automatic, std::nullopt } }, .biggerText = 4 };
    EXPECT_EQ(file.read().state, expected);
}

TEST(HostStateFile, keepsABrokenFileAsideAndStartsAnew)
{
    struct Case {
        std::string_view name;
        std::string bytes;
        std::string_view why;
    };
    const Case cases[] = {
        { "nothing", "", "JSON" },
        { "cut off", std::string(bytesOfTwo.substr(0, 100)), "JSON" },
        { "another form", "[]", "object" },
        { "no version", R"({"state":{}})", "version" },
        { "a newer version in another form", R"({"version":2,"state":[]})", "version is 2" },
        { "an unknown look", R"({"version":1,"state":{"widgets":[{"id":"a","kind":"","family":"","look":"neon"}]}})",
            "state.widgets[0].look" },
        { "one id twice",
            R"({"version":1,"state":{"widgets":[{"id":"a","kind":"","family":""},{"id":"a","kind":"","family":""}]}})",
            "\"a\"" },
        { "too long", std::string(2'000'000, ' '), "bytes" },
    };
    for (const auto& c : cases) {
        const TemporaryFolder folder;
        HostStateFile file(folder / "state");
        for (const auto* aside : { "state.broken", "state.broken-2" }) {
            put(folder / "state", c.bytes);
            const auto reading = file.read();
            EXPECT_EQ(reading.state, HostState {}) << c.name;
            EXPECT_THAT(reading.warning, Optional(HasSubstr(c.why))) << c.name;
            EXPECT_THAT(reading.warning, Optional(HasSubstr(std::string("kept as ") + aside))) << c.name;
            EXPECT_EQ(contents(folder / aside), c.bytes) << c.name;
            ASSERT_TRUE(file.write(two)) << c.name;
            EXPECT_EQ(file.read().state, two) << c.name;
        }
    }
}

TEST(HostStateFile, isNotWrittenOverWhatItCouldNotRead)
{
    const TemporaryFolder folder;
    fs::create_symlink("state", folder / "state"); // round and round: the system refuses to open it
    HostStateFile file(folder / "state");
    EXPECT_THAT(file.read().warning, Optional(HasSubstr("left as it is")));
    EXPECT_FALSE(file.write(two));
    EXPECT_TRUE(fs::is_symlink(folder / "state"));

    fs::remove(folder / "state");
    EXPECT_EQ(file.read().warning, std::nullopt);
    EXPECT_TRUE(file.write(two)) << "once it is gone";
}

TEST(HostStateFile, liesAmongTheUsersSettings)
{
    ::setenv("HOME", "/home/somebody", 1);
    for (const auto& [configuration, folder] : { std::pair("/settings", "/settings"),
             std::pair("settings", "/home/somebody/.config"), std::pair("", "/home/somebody/.config") }) {
        ::setenv("XDG_CONFIG_HOME", configuration, 1);
        EXPECT_EQ(HostStateFile::standardPath(), fs::path(folder) / "orvel" / "widget-host.json") << configuration;
    }
}
