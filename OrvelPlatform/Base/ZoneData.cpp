#include "OrvelPlatform/Base/ZoneData.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <utility>

#include "OrvelPlatform/Base/File.h"

namespace orvel {

namespace {

/// Far above every real zone, of which the longest has 4 kB.
constexpr std::size_t maximumFileSize = 1 << 20;

/// When summer time begins and ends where a rule leaves it open.
constexpr std::string_view defaultStart = ",M3.2.0", defaultEnd = ",M11.1.0";

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

/// What a POSIX rule begins with, such as "CET-1" or "<+0330>-3:30".
struct StandardTime {
    std::string_view name;
    std::chrono::seconds offset; // east of UTC: the opposite of what the rule writes
    std::string_view rest;
};

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Takes a number off the front of a text; absent where there is none or one above `maximum`.
std::optional<int> takeNumber(std::string_view& text, int maximum)
{
    auto value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc {} || value < 0 || value > maximum)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// Takes "[±]hh[:mm[:ss]]" off the front of a text.
std::optional<std::chrono::seconds> takeOffset(std::string_view& text)
{
    const auto isSigned = text.starts_with('-') || text.starts_with('+');
    const auto sign = text.starts_with('-') ? -1 : 1;
    if (isSigned)
        text.remove_prefix(1);
    const auto hours = takeNumber(text, 24);
    if (!hours)
        return std::nullopt;
    std::chrono::seconds offset = std::chrono::hours { *hours };
    for (const std::chrono::seconds unit : { std::chrono::seconds { 60 }, std::chrono::seconds { 1 } }) {
        if (!text.starts_with(':'))
            break;
        text.remove_prefix(1);
        const auto number = takeNumber(text, 59);
        if (!number)
            return std::nullopt;
        offset += *number * unit;
    }
    return sign * offset;
}

std::optional<StandardTime> standardTime(std::string_view rule)
{
    const auto isQuoted = rule.starts_with('<');
    const auto nameEnd =
        isQuoted ? rule.find('>') : static_cast<std::size_t>(std::ranges::find_if_not(rule, isLetter) - rule.begin());
    if (nameEnd == std::string_view::npos)
        return std::nullopt;
    const auto name = isQuoted ? rule.substr(1, nameEnd - 1) : rule.substr(0, nameEnd);
    auto rest = rule.substr(nameEnd + (isQuoted ? 1 : 0));
    const auto offset = takeOffset(rest);
    if (name.size() < 3 || !offset)
        return std::nullopt;
    return StandardTime { name, -*offset, rest };
}

/// Whether a rule says when summer time begins and ends, if it has one.
bool isComplete(const StandardTime& standard)
{
    return standard.rest.empty() || std::ranges::count(standard.rest, ',') == 2;
}

/// The rule with the dates that the C library takes where they are missing.
std::string withDates(std::string_view rule, const StandardTime& standard)
{
    std::string full(rule);
    const auto dates = std::ranges::count(standard.rest, ',');
    if (!standard.rest.empty() && dates == 0)
        full += defaultStart;
    if (!standard.rest.empty() && dates < 2)
        full += defaultEnd;
    return full;
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
    const auto standard = standardTime(rule);
    return rule.empty() || (standard && isComplete(*standard));
}

}

std::optional<std::string> zoneDataFromFile(const std::filesystem::path& path)
{
    auto bytes = readFile(path, maximumFileSize);
    if (!bytes || !isWhole(*bytes))
        return std::nullopt;
    return *std::move(bytes);
}

std::optional<std::string> zoneDataFromRule(std::string_view rule)
{
    const auto isPrintable = [](char character) { return character > ' ' && character <= '~'; };
    const auto standard = std::ranges::all_of(rule, isPrintable) ? standardTime(rule) : std::nullopt;
    if (!standard)
        return std::nullopt;
    const std::chrono::sys_seconds start = std::chrono::sys_days { std::chrono::year { 1900 } / 1 / 1 };
    const Counts counts { .times = 1, .types = 1, .characters = static_cast<std::uint32_t>(standard->name.size() + 1) };

    std::string bytes;
    appendHeader(bytes, {});
    appendHeader(bytes, counts);
    appendBigEndian(bytes, start.time_since_epoch().count(), 8);
    appendBigEndian(bytes, 0, 1); // from then on the first type …
    appendBigEndian(bytes, standard->offset.count(), 4); // … which has this offset,
    appendBigEndian(bytes, 0, 1); // is no summer time
    appendBigEndian(bytes, 0, 1); // and has the first name;
    bytes.append(standard->name).append(1, '\0');
    bytes.append("\n").append(withDates(rule, *standard)).append("\n"); // then the rule holds
    return isWhole(bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

}
