#pragma once

#include <cstddef>
#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// Owns a file descriptor and closes it.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) { }
    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(other.release()) { }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor();

    explicit operator bool() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    int release();

    /// Closes now. False when the system reports what it had not been able to write until then.
    [[nodiscard]] bool close();

private:
    int m_descriptor = -1;
};

/// The whole of a regular file of at most `limit` bytes. Anything else under that name (a folder, a FIFO, a device) and
/// a longer file is a fault at once: nothing waits, and a long file is turned away by its size before it is read.
[[nodiscard]] std::expected<std::string, Fault> readFile(const std::filesystem::path& path, std::size_t limit);

/// Replaces a file in one step, durably: whatever happens, the name stands for the old bytes or for the new ones. The
/// folder is made (0700, with those above it) where it is missing. On a fault nothing is left behind.
[[nodiscard]] std::expected<void, Fault> replaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Deletes a file; that there is none is a fault too.
[[nodiscard]] std::expected<void, Fault> removeFile(const std::filesystem::path& path);

}
