#include "OrvelPlatform/Drawing/Png.h"

#include <algorithm>
#include <array>
#include <libdeflate.h>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace orvel {

namespace {

using Byte = std::uint8_t;
constexpr std::size_t pixelSize = 4;

void appendNumber(std::string& file, std::uint32_t number)
{
    for (const unsigned shift : { 24U, 16U, 8U, 0U })
        file += static_cast<char>(number >> shift & 0xffU);
}

void appendChunk(std::string& file, std::string_view kind, std::string_view data)
{
    appendNumber(file, static_cast<std::uint32_t>(data.size()));
    const auto checked = file.size();
    file += kind;
    file += data;
    const auto* const bytes = file.data() + checked;
    appendNumber(file, libdeflate_crc32(0, bytes, file.size() - checked));
}

using Channels = std::array<Byte, pixelSize>;

/// Red, green, blue and alpha, not premultiplied.
Channels separated(std::uint32_t pixel)
{
    constexpr std::uint32_t full = 255;
    const std::uint32_t alpha = pixel >> 24U;
    const auto channel = [&](unsigned shift) {
        const std::uint32_t value = pixel >> shift & 0xffU;
        return static_cast<Byte>(alpha == full || alpha == 0 ? value : (value * full + alpha / 2) / alpha);
    };
    return { channel(16), channel(8), channel(0), static_cast<Byte>(alpha) };
}

/// The picture's rows as differences to the row above, each with the filter's number before it: what is left of smooth
/// ground is small numbers, which pack well. A row's bytes never begin before its pixels do, so that from the last row
/// up they can take the pixels' place.
std::span<const std::byte> filterRows(std::vector<std::uint32_t>& pixels, std::size_t width)
{
    constexpr Byte differenceToRowAbove = 2;
    const auto height = pixels.size() / width, rowSize = width * pixelSize + 1;
    const auto words = pixels.size() + (height + pixelSize - 1) / pixelSize;
    pixels.reserve(words); // as many and no more
    pixels.resize(words);
    const auto bytes = std::as_writable_bytes(std::span(pixels));
    std::vector<Channels> row(width), above(width);
    const auto separate = [&](std::vector<Channels>& to, std::size_t y) {
        std::ranges::transform(std::span(pixels).subspan(y * width, width), to.begin(), separated);
    };
    separate(row, height - 1);
    for (auto y = height; y-- > 0; row.swap(above)) {
        if (y > 0)
            separate(above, y - 1);
        else
            above.assign(width, {});
        auto out = bytes.begin() + static_cast<std::ptrdiff_t>(y * rowSize);
        *out++ = std::byte { differenceToRowAbove };
        for (std::size_t x = 0; x < width; ++x) {
            for (std::size_t i = 0; i < pixelSize; ++i)
                *out++ = static_cast<std::byte>(row[x][i] - above[x][i]);
        }
    }
    return bytes.first(height * rowSize);
}

struct Release {
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
};

/// Bytes in memory that nobody clears: what packing does not use takes none.
struct Buffer {
    std::unique_ptr<char[]> bytes;
    std::size_t size;

    explicit Buffer(std::size_t itsSize) : bytes(std::make_unique_for_overwrite<char[]>(itsSize)), size(itsSize) { }
    std::string_view view() const { return { bytes.get(), size }; }
};

std::expected<Buffer, Fault> packed(std::span<const std::byte> rows)
{
    constexpr int fastest = 1;
    const std::unique_ptr<libdeflate_compressor, Release> compressor(libdeflate_alloc_compressor(fastest));
    if (!compressor)
        return std::unexpected(Fault { {}, "there is not enough memory to pack the picture" });
    Buffer data(libdeflate_zlib_compress_bound(compressor.get(), rows.size()));
    data.size = libdeflate_zlib_compress(compressor.get(), rows.data(), rows.size(), data.bytes.get(), data.size);
    return data;
}

}

std::expected<std::string, Fault> pngFile(std::vector<std::uint32_t> pixels, std::uint32_t width)
{
    if (width == 0 || pixels.empty() || pixels.size() % width != 0)
        return std::unexpected(Fault { {}, "a picture has whole rows" });
    const auto height = static_cast<std::uint32_t>(pixels.size() / width);
    const auto data = packed(filterRows(pixels, width));
    if (!data)
        return std::unexpected(data.error());
    std::string file("\x89PNG\r\n\x1a\n");
    std::string header;
    appendNumber(header, width);
    appendNumber(header, height);
    header += { 8, 6, 0, 0, 0 }; // eight bits, red green blue and alpha; the only ways of packing, filtering and order
    appendChunk(file, "IHDR", header);
    appendChunk(file, "sRGB", std::string_view("\0", 1));
    appendChunk(file, "IDAT", data->view());
    appendChunk(file, "IEND", {});
    return file;
}

}
