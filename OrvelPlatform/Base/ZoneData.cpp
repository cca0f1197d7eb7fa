#include "OrvelPlatform/Base/ZoneData.h"

#include <chrono>
#include <cstdint>
#include <utility>

#include "OrvelPlatform/Base/File.h"

namespace orvel {

namespace {

/// Far above every real zone, of which the longest has 4 kB.
constexpr std::size_t maximumFileSize = 1 << 20;

/// The numbers of a TZif header, in its order.
struct Counts {
    std::uint32_t utcMarks = 0, standardMarks = 0, leapSeconds = 0, times = 0, types = 0, characters = 0;
};

constexpr std::size_t countsStart = 20; // after the mark, the version and 15 unused bytes
constexpr std::size_t headerSize = countsStart + sizeof(Counts);

std::uint32_t bigEndian(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (const auto byte : bytes.substr(at, 4))
        value = value << 8 | static_cast<std::uint8_t>(byte);
    return value;
}

std::optional<Counts> readCounts(std::string_view bytes)
{
    if (bytes.size() < headerSize || !bytes.starts_with(zoneDataMark))
        return std::nullopt;
    const auto count = [&](std::size_t index) { return bigEndian(bytes, countsStart + 4 * index); };
    return Counts { count(0), count(1), count(2), count(3), count(4), count(5) };
}

/// The size of what follows a header, where instants take `instantSize` bytes.
std::uint64_t blockSize(const Counts& counts, std::uint64_t instantSize)
{
    return (instantSize + 1) * counts.times + std::uint64_t { 6 } * counts.types + counts.characters
        + (instantSize + 4) * counts.leapSeconds + counts.standardMarks + counts.utcMarks;
}

/// The size of a header and its block at the start of `bytes`, if they are there.
std::optional<std::size_t> wholeBlock(std::string_view bytes, std::uint64_t instantSize)
{
    const auto counts = readCounts(bytes);
    if (!counts || blockSize(*counts, instantSize) > bytes.size() - headerSize)
        return std::nullopt;
    return headerSize + blockSize(*counts, instantSize);
}

void appendBigEndian(std::string& bytes, std::int64_t value, int size)
{
    for (auto shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(value >> shift & 0xff));
}

void appendHeader(std::string& bytes, const Counts& counts)
{
    bytes.append(zoneDataMark).append("2").append(15, '\0');
    for (const auto count :
        { counts.utcMarks, counts.standardMarks, counts.leapSeconds, counts.times, counts.types, counts.characters })
        appendBigEndian(bytes, count, 4);
}

/// Whether data holds what its headers announce. From version 2 on, the first block is a copy with short instants for
/// old readers, and may be empty; after the second stands the rule for what lies beyond the last change, in a line.
bool isWhole(std::string_view bytes)
{
    const auto first = wholeBlock(bytes, 4);
    if (!first || bytes[zoneDataMark.size()] == '\0')
        return first.has_value();
    bytes.remove_prefix(*first);
    const auto second = wholeBlock(bytes, 8);
    if (!second)
        return false;
    bytes.remove_prefix(*second);
    if (bytes.size() < 2 || !bytes.starts_with('\n') || !bytes.ends_with('\n'))
        return false;
    const auto rule = bytes.substr(1, bytes.size() - 2);
    const auto read = posixRule(rule);
    return rule.empty() || (read && read->text == rule);
}

}

std::optional<std::string> zoneDataFromFile(const std::filesystem::path& path)
{
    auto bytes = readFile(path, maximumFileSize);
    if (!bytes || !isWhole(*bytes))
        return std::nullopt;
    return *std::move(bytes);
}

std::string zoneDataFromRule(const PosixRule& rule)
{
    const std::chrono::sys_seconds start = std::chrono::sys_days { std::chrono::year { 1900 } / 1 / 1 };
    const auto characters = static_cast<std::uint32_t>(rule.standardName.size() + 1);

    std::string bytes;
    appendHeader(bytes, {});
    appendHeader(bytes, { .times = 1, .types = 1, .characters = characters });
    appendBigEndian(bytes, start.time_since_epoch().count(), 8);
    appendBigEndian(bytes, 0, 1); // from then on the first type …
    appendBigEndian(bytes, rule.standardOffset.count(), 4); // … which has this offset,
    appendBigEndian(bytes, 0, 1); // is no summer time
    appendBigEndian(bytes, 0, 1); // and has the first name;
    bytes.append(rule.standardName).append(1, '\0');
    bytes.append("\n").append(rule.text).append("\n"); // then the rule holds
    return bytes;
}

}
