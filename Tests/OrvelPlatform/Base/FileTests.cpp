#include "OrvelPlatform/Base/File.h"

#include <atomic>
#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "Tests/TemporaryFolder.h"

using namespace orvel;
using testing::HasSubstr;

namespace {

void write(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::size_t countOfFiles(const std::filesystem::path& folder)
{
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
}

}

TEST(ReadFile, readsWholeRegularFilesOnlyAndNeverWaits)
{
    const TemporaryFolder folder;
    const std::string bytes("a\0b\xFF", 4);
    write(folder / "file", bytes);
    EXPECT_EQ(readFile(folder / "file", 4), bytes);
    EXPECT_EQ(readFile(folder / "missing", 4).error().cause, std::errc::no_such_file_or_directory);

    ::mkfifo((folder / "fifo").c_str(), 0600);
    std::filesystem::create_directory(folder / "folder");
    std::filesystem::create_symlink("loop", folder / "loop");
    const std::pair<std::filesystem::path, std::string_view> faults[] = {
        { folder / "fifo", "is not a regular file" },
        { folder / "folder", "is not a regular file" },
        { "/dev/zero", "is not a regular file" },
        { folder / "loop", "cannot be opened" },
    };
    for (const auto& [path, why] : faults) {
        const auto fault = readFile(path, 4).error();
        EXPECT_EQ(fault.where, path.string());
        EXPECT_THAT(fault.why, HasSubstr(why)) << path;
    }
    EXPECT_THAT(readFile(folder / "file", 3).error().why, HasSubstr("has 4 bytes; at most 3"));
}

TEST(ReplaceFile, makesFoldersForTheUserAloneAndLeavesNothingElse)
{
    const TemporaryFolder folder;
    const auto path = folder / "new" / "deep" / "file";
    ASSERT_TRUE(replaceFile(path, "first"));
    ASSERT_TRUE(replaceFile(path, "second"));
    EXPECT_EQ(readFile(path, 100), "second");
    EXPECT_EQ(countOfFiles(path.parent_path()), 1u);
    struct stat status { };
    ASSERT_EQ(::stat((folder / "new").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST(ReplaceFile, isAFaultWithItsReasonWhereItCannotWrite)
{
    const TemporaryFolder folder;
    write(folder / "file", "");
    std::filesystem::create_directories(folder / "folder" / "inside");
    const auto beneathAFile = replaceFile(folder / "file" / "below", "new");
    EXPECT_THAT(beneathAFile.error().text(), HasSubstr("Not a directory"));
    const auto ontoAFolder = replaceFile(folder / "folder", "new");
    EXPECT_THAT(ontoAFolder.error().text(), HasSubstr("Is a directory"));
    EXPECT_EQ(countOfFiles(folder.path()), 2u);
    EXPECT_EQ(replaceFile("/proc/orvel", "new").error().where, "/proc/orvel");
}

TEST(ReplaceFile, keepsTheOldFileWhenTheDiskIsFull)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(replaceFile(folder / "file", "old"));
    // A child of our own, because the limit on a file's size cannot be raised again.
    const auto child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit { .rlim_cur = 4096, .rlim_max = 4096 };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const auto result = replaceFile(folder / "file", std::string(8192, 'x'));
        ::_exit(!result && result.error().cause == std::errc::file_too_large ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(readFile(folder / "file", 100), "old");
    EXPECT_EQ(countOfFiles(folder.path()), 1u);
}

TEST(ReplaceFile, showsReadersTheOldBytesOrTheNewOnes)
{
    const TemporaryFolder folder;
    const std::string versions[] = { std::string(100'000, 'a'), std::string(70'000, 'b') };
    ASSERT_TRUE(replaceFile(folder / "file", versions[0]));
    std::atomic<bool> isDone = false;
    std::jthread writer([&] {
        for (auto count = 1; count <= 60; ++count)
            EXPECT_TRUE(replaceFile(folder / "file", versions[count % 2]));
        isDone = true;
    });
    while (!isDone) {
        const auto bytes = readFile(folder / "file", 1 << 20);
        ASSERT_TRUE(bytes == versions[0] || bytes == versions[1]);
    }
}

TEST(ReplaceFile, survivesAKillAtAnyPoint)
{
    const TemporaryFolder folder;
    const std::string versions[] = { std::string(300'000, 'a'), std::string(200'000, 'b') };
    ASSERT_TRUE(replaceFile(folder / "file", versions[0]));
    for (auto wait = 0; wait < 30; ++wait) {
        const auto child = ::fork();
        if (child == 0) {
            for (auto count = 0;; ++count)
                static_cast<void>(replaceFile(folder / "file", versions[count % 2]));
        }
        std::this_thread::sleep_for(std::chrono::microseconds { 500 + 173 * wait });
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const auto bytes = readFile(folder / "file", 1 << 20);
        ASSERT_TRUE(bytes == versions[0] || bytes == versions[1]);
    }
}

TEST(RemoveFile, reportsAFileThatIsNotThere)
{
    const TemporaryFolder folder;
    write(folder / "file", "");
    EXPECT_TRUE(removeFile(folder / "file"));
    EXPECT_EQ(removeFile(folder / "file").error().cause, std::errc::no_such_file_or_directory);
}
