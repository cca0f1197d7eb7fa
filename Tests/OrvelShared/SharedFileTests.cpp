#include "OrvelShared/SharedFile.h"

#include <fstream>
#include <gmock/gmock.h>
#include <random>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "OrvelShared/AppGroup.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "Tests/OrvelShared/Samples.h"
#include "Tests/TemporaryFolder.h"

using namespace orvel;
using testing::HasSubstr;

namespace {

void write(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

long peakKilobytes()
{
    rusage usage {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}

TEST(SharedFiles, readBackWhatWasWritten)
{
    const TemporaryFolder folder;
    const SharedFile<WidgetSnapshot> file("widgets.json", folder / "container");
    EXPECT_EQ(file.url, folder / "container" / "widgets.json");
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_EQ(file.remove().error().cause, std::errc::no_such_file_or_directory);

    const auto snapshot = emptySnapshot(date("2026-03-02T09:00:00Z"));
    ASSERT_TRUE(file.write(snapshot));
    EXPECT_EQ(file.read(), snapshot);
    EXPECT_TRUE(file.remove());
    EXPECT_EQ(file.read(), std::nullopt);
}

TEST(SharedFiles, keepTheOldRecordWhenTheNewOneHasNoForm)
{
    const TemporaryFolder folder;
    const SharedFile<WidgetSnapshot> file(folder / "widgets.json");
    const auto good = emptySnapshot(date("2026-03-02T09:00:00Z"));
    ASSERT_TRUE(file.write(good));
    auto bad = good;
    bad.breathe.style = "\xFF";
    EXPECT_EQ(file.write(bad).error().text(), "breathe.style: text that is not UTF-8");
    EXPECT_EQ(file.read(), good);
}

TEST(SharedFiles, areAbsentWhateverStandsUnderTheName)
{
    const TemporaryFolder folder;
    const SharedFile<WidgetSnapshot> file(folder / "widgets.json");
    for (const auto bytes : { "", "{}", "null", "[]", "{", "\xFF\xFE{" }) {
        write(file.url, bytes);
        EXPECT_EQ(file.read(), std::nullopt) << bytes;
    }
    std::filesystem::remove(file.url);
    std::filesystem::create_directory(file.url);
    EXPECT_EQ(file.read(), std::nullopt);
    std::filesystem::remove(file.url);
    ::mkfifo(file.url.c_str(), 0600);
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_THAT(file.readOrFault().error().text(), HasSubstr("widgets.json: is not a regular file"));
}

TEST(SharedFiles, costLittleHoweverLargeOrStrange)
{
    const TemporaryFolder folder;
    const SharedFile<WidgetSnapshot> file(folder / "widgets.json");
    const auto before = peakKilobytes();
    write(file.url, "");
    std::filesystem::resize_file(file.url, std::uintmax_t { 1 } << 40);
    EXPECT_THAT(file.readOrFault().error().why, HasSubstr("has 1099511627776 bytes"));
    EXPECT_LT(peakKilobytes() - before, 10'000);

    std::mt19937_64 random(1);
    std::string noise(1 << 20, '\0');
    for (auto& byte : noise)
        byte = static_cast<char>(random());
    for (const auto& bytes :
        { noise, std::string(1 << 20, '['), std::string(1 << 20, '"'), "{" + std::string(1 << 20, ' ') }) {
        write(file.url, bytes);
        EXPECT_EQ(file.read(), std::nullopt);
    }
}

TEST(AppGroups, haveAContainerOfTheirOwnWhenTheirIdentifierIsUsable)
{
    const TemporaryFolder folder;
    ::setenv("XDG_DATA_HOME", folder.path().c_str(), 1);
    EXPECT_EQ(
        AppGroup::container("K4Q7M2XR9T.app.orvel.mac"), folder / "Group Containers" / "K4Q7M2XR9T.app.orvel.mac");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));

    const std::optional<std::string> unusable[] = { std::nullopt, "", ".", "..", "a/b", "/", std::string("a\0b", 3),
        std::string(256, 'x') };
    for (const auto& identifier : unusable) {
        EXPECT_EQ(AppGroup::container(identifier), folder / "Orvel-NoGroup");
        EXPECT_TRUE(std::filesystem::is_directory(folder / "Orvel-NoGroup"));
    }
    ::setenv("XDG_DATA_HOME", "/proc/nowhere", 1);
    EXPECT_EQ(AppGroup::container(std::nullopt), "/proc/nowhere/Orvel-NoGroup");
}
