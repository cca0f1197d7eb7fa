#include "OrvelPlatform/Base/File.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvel {

namespace {

namespace fs = std::filesystem;

Fault fault(const fs::path& path, std::string_view why)
{
    return { .where = path.string(), .why = std::string(why) };
}

/// The system's own reason for what just failed.
Fault systemFault(const fs::path& path, std::string_view attempt, int error = errno)
{
    return { .where = path.string(),
        .why = fmt::format("{}: {}", attempt, std::generic_category().message(error)),
        .cause = static_cast<std::errc>(error) };
}

std::expected<std::size_t, Fault> sizeOfRegularFile(const FileDescriptor& file, const fs::path& path, std::size_t limit)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return std::unexpected(systemFault(path, "cannot be read"));
    if (!S_ISREG(status.st_mode))
        return std::unexpected(fault(path, "is not a regular file"));
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > limit)
        return std::unexpected(fault(path, fmt::format("has {} bytes; at most {} are read", size, limit)));
    return size;
}

/// Reads until `count` bytes have come or the file ends; -1 with errno set when the system reports a fault.
ssize_t readUpTo(const FileDescriptor& file, char* bytes, std::size_t count)
{
    std::size_t done = 0;
    while (done < count) {
        const auto got = ::read(file.get(), bytes + done, count - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return static_cast<ssize_t>(done);
}

bool writeAll(const FileDescriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto written = ::write(file.get(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Makes a folder and those above it for the user alone. Whether it worked shows when something is put into it.
void makeFolder(const fs::path& folder)
{
    if (folder.empty() || ::mkdir(folder.c_str(), 0700) == 0 || errno != ENOENT || folder == folder.parent_path())
        return;
    makeFolder(folder.parent_path());
    ::mkdir(folder.c_str(), 0700);
}

/// A file beside the destination that is deleted unless it took the destination's name.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& destination)
    {
        std::random_device random;
        do {
            m_path = destination.parent_path() / fmt::format(".{}.{:08x}", destination.filename().string(), random());
            m_file = FileDescriptor(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
        } while (!m_file && errno == EEXIST);
        m_exists = static_cast<bool>(m_file);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_exists)
            ::unlink(m_path.c_str());
    }

    FileDescriptor& file() { return m_file; }

    bool takeName(const fs::path& destination)
    {
        if (::rename(m_path.c_str(), destination.c_str()) != 0)
            return false;
        m_exists = false;
        return true;
    }

private:
    fs::path m_path;
    FileDescriptor m_file;
    bool m_exists = false;
};

}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

int FileDescriptor::release()
{
    return std::exchange(m_descriptor, -1);
}

bool FileDescriptor::close()
{
    return ::close(release()) == 0;
}

std::expected<std::string, Fault> readFile(const fs::path& path, std::size_t limit)
{
    // Without O_NONBLOCK, opening a FIFO would wait for somebody to write into it.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file)
        return std::unexpected(systemFault(path, "cannot be opened"));
    const auto size = sizeOfRegularFile(file, path, limit);
    if (!size)
        return std::unexpected(size.error());

    // One byte more than it should have shows a file that grows while it is read.
    std::string bytes(*size + 1, '\0');
    const auto count = readUpTo(file, bytes.data(), bytes.size());
    if (count < 0)
        return std::unexpected(systemFault(path, "cannot be read"));
    if (static_cast<std::size_t>(count) > *size)
        return std::unexpected(fault(path, "grew while it was read"));
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

std::expected<void, Fault> replaceFile(const fs::path& path, std::string_view bytes)
{
    const auto folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    makeFolder(folder);
    TemporaryFile temporary(folder / path.filename());
    if (!temporary.file())
        return std::unexpected(systemFault(path, "cannot be written"));
    if (!writeAll(temporary.file(), bytes) || ::fsync(temporary.file().get()) != 0 || !temporary.file().close())
        return std::unexpected(systemFault(path, "cannot be written"));
    if (!temporary.takeName(path))
        return std::unexpected(systemFault(path, "cannot be replaced"));

    // Only now is the new name itself on the disk. The file is whole either way, so a folder that cannot be flushed is
    // no fault.
    const FileDescriptor parent(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (parent)
        ::fsync(parent.get());
    return {};
}

std::expected<void, Fault> removeFile(const fs::path& path)
{
    if (::unlink(path.c_str()) != 0)
        return std::unexpected(systemFault(path, "cannot be removed"));
    return {};
}

}
