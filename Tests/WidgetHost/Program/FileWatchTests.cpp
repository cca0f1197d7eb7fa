#include "WidgetHost/Program/FileWatch.h"

#include <gtest/gtest.h>

#include "OrvelPlatform/Desktop/EventLoop.h"
#include "Tests/TemporaryFolder.h"

using namespace orvel;

TEST(FileWatch, tellsThatALinkLeadsElsewhere)
{
    const TemporaryFolder folder;
    std::filesystem::create_symlink("here", folder / "localtime");
    auto loop = EventLoop::ofTheProgram();
    auto isOver = false;
    auto changes = 0;
    const auto deadline = loop.after(std::chrono::seconds { 10 }, [&] { isOver = true; });
    const FileWatch watch(folder / "localtime", [&] { ++changes; });
    // As the system's own tools do it.
    std::filesystem::create_symlink("there", folder / "new");
    std::filesystem::rename(folder / "new", folder / "localtime");
    while (changes == 0 && !isOver)
        loop.turn(true);
    EXPECT_GT(changes, 0);
}
