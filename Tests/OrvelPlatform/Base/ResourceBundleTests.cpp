#include "OrvelPlatform/Base/ResourceBundle.h"

#include <gtest/gtest.h>

using namespace orvel;

namespace {

namespace fs = std::filesystem;

const int inThisModule = 0;

/// A folder for as long as a test needs it.
struct Folder {
    fs::path path;
    explicit Folder(fs::path made) : path(std::move(made)) { fs::create_directories(path); }
    ~Folder() { fs::remove_all(path); }
};

}

TEST(ResourceBundles, areSoughtAmongTheResourcesFirst)
{
    const auto main = Bundle::main();
    const Folder beside(main.path() / "OrvelTest_Sought.bundle");
    EXPECT_EQ(resourceBundle("OrvelTest_Sought", &inThisModule).path(), beside.path);
    const Folder among(main.resources() / "OrvelTest_Sought.bundle");
    EXPECT_EQ(resourceBundle("OrvelTest_Sought", &inThisModule).path(), among.path);
}

TEST(ResourceBundles, thatAreMissingStopTheProcess)
{
    EXPECT_DEATH(resourceBundle("OrvelTest_Missing", &inThisModule), "unable to find bundle named OrvelTest_Missing");
}
