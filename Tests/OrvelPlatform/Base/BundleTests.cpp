#include "OrvelPlatform/Base/Bundle.h"

#include <fstream>
#include <gtest/gtest.h>
#include <stdlib.h>

#include "OrvelPlatform/Base/ApplicationSupport.h"
#include "Tests/TemporaryFolder.h"

using namespace orvel;

TEST(Bundles, giveTextsOfTheirInformationDictionaryAndNothingElse)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(Bundle::at(folder / "Missing.bundle"));
    const auto bundle = Bundle::at(folder.path());
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->information("name"), std::nullopt);
    const auto informationIn = [&](std::string_view json) {
        std::ofstream(folder / "Info.json") << json;
        return bundle->information("name");
    };
    EXPECT_EQ(informationIn(R"({"name":"value"})"), "value");
    for (const auto json : { R"({"other":"value"})", R"({"name":7})", R"({"name":null})", "[]", "\"name\"", "{" })
        EXPECT_EQ(informationIn(json), std::nullopt) << json;
}

TEST(Bundles, ofAProgramOutsideAnyBundleAreItsFolder)
{
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(Bundle::main().path(), program.parent_path());
    static const int inThisProgram = 0;
    EXPECT_EQ(Bundle::holding(&inThisProgram).path(), program.parent_path());
}

TEST(ApplicationSupport, followsAbsolutePathsOnly)
{
    ::setenv("HOME", "/home/somebody", 1);
    ::setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(applicationSupport(), "/data");
    for (const auto* unusable : { "", "relative/path" }) {
        ::setenv("XDG_DATA_HOME", unusable, 1);
        EXPECT_EQ(applicationSupport(), "/home/somebody/.local/share");
    }
    ::unsetenv("XDG_DATA_HOME");
    ::unsetenv("HOME");
    EXPECT_TRUE(applicationSupport().is_absolute());
}
