#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/File.h"

namespace orvel {

/// Bytes as a memory file that nobody can change any more, to be handed to another process and closed here. They are
/// written rather than mapped, so that they lie in memory once.
[[nodiscard]] std::expected<FileDescriptor, Fault> sealedMemory(std::span<const std::byte> bytes);

/// Pixels that another process drew, read where they lie. Whoever made them cannot change or cut them any more.
class MappedPixels {
public:
    /// Maps the first `bytes` bytes. A file without seals against writing and shrinking, or of another size, is a
    /// fault: its owner could pull it away while it is read.
    [[nodiscard]] static std::expected<MappedPixels, Fault> map(const FileDescriptor& file, std::size_t bytes);

    MappedPixels(MappedPixels&& other) noexcept;
    MappedPixels& operator=(MappedPixels&& other) noexcept;
    ~MappedPixels();

    /// Premultiplied ARGB, one word a pixel.
    std::span<const std::uint32_t> pixels() const { return m_pixels; }

private:
    explicit MappedPixels(std::span<const std::uint32_t> pixels) : m_pixels(pixels) { }

    std::span<const std::uint32_t> m_pixels;
};

}
