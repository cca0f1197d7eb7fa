#include "OrvelPlatform/Desktop/SharedPixels.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orvel {

namespace {

Fault systemFault(std::string_view attempt, int error = errno)
{
    return { .where = {},
        .why = fmt::format("{}: {}", attempt, std::generic_category().message(error)),
        .cause = static_cast<std::errc>(error) };
}

bool writeAt0(const FileDescriptor& file, std::span<const std::byte> bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto written = ::pwrite(file.get(), &bytes[done], bytes.size() - done, static_cast<off_t>(done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

constexpr int neededSeals = F_SEAL_WRITE | F_SEAL_SHRINK;

}

std::expected<FileDescriptor, Fault> sealedMemory(std::span<const std::byte> bytes)
{
    FileDescriptor file(::memfd_create("orvel-picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!file)
        return std::unexpected(systemFault("no memory can be shared"));
    if (!writeAt0(file, bytes))
        return std::unexpected(systemFault("shared memory cannot be written"));
    if (::fcntl(file.get(), F_ADD_SEALS, neededSeals | F_SEAL_GROW | F_SEAL_SEAL) != 0)
        return std::unexpected(systemFault("shared memory cannot be sealed"));
    return file;
}

std::expected<MappedPixels, Fault> MappedPixels::map(const FileDescriptor& file, std::size_t bytes)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return std::unexpected(systemFault("shared memory cannot be examined"));
    if (bytes == 0 || status.st_size < 0 || static_cast<std::size_t>(status.st_size) != bytes)
        return std::unexpected(
            Fault { .where = {}, .why = fmt::format("shared memory has {} bytes, not {}", status.st_size, bytes) });
    // Only memory files can have seals; any other file is a fault here.
    const auto seals = ::fcntl(file.get(), F_GET_SEALS);
    if (seals < 0 || (seals & neededSeals) != neededSeals)
        return std::unexpected(Fault { .where = {}, .why = "shared memory is not sealed" });
    void* start = ::mmap(nullptr, bytes, PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (start == MAP_FAILED)
        return std::unexpected(systemFault("shared memory cannot be mapped"));
    return MappedPixels({ static_cast<const std::uint32_t*>(start), bytes / sizeof(std::uint32_t) });
}

MappedPixels::MappedPixels(MappedPixels&& other) noexcept : m_pixels(std::exchange(other.m_pixels, {})) { }

MappedPixels& MappedPixels::operator=(MappedPixels&& other) noexcept
{
    std::swap(m_pixels, other.m_pixels);
    return *this;
}

MappedPixels::~MappedPixels()
{
    // munmap takes its memory as changeable, though nothing is written.
    if (!m_pixels.empty())
        ::munmap(const_cast<std::uint32_t*>(m_pixels.data()), m_pixels.size_bytes());
}

}
