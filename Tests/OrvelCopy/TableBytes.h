#pragma once

#include <cstdint>
#include <map>
#include <string>

/// The bytes of a string table with these entries: keys and translations as they stand in the file, a key that is
/// inflected with its plural after a NUL. An empty key is the header.
inline std::string tableBytes(const std::map<std::string, std::string>& entries)
{
    constexpr std::uint32_t headerSize = 28;
    const auto count = static_cast<std::uint32_t>(entries.size());
    std::string lists[2];
    std::string texts;
    const auto append = [](std::string& bytes, std::uint32_t number) {
        for (auto shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(number >> shift & 0xFFU);
    };
    const auto appendText = [&](std::string& list, const std::string& text) {
        append(list, static_cast<std::uint32_t>(text.size()));
        append(list, headerSize + 16 * count + static_cast<std::uint32_t>(texts.size()));
        texts += text;
        texts += '\0';
    };
    for (const auto& [key, translation] : entries) {
        appendText(lists[0], key);
        appendText(lists[1], translation);
    }
    std::string bytes;
    for (const auto number : { 0x950412deU, 0U, count, headerSize, headerSize + 8 * count, 0U, 0U })
        append(bytes, number);
    return bytes + lists[0] + lists[1] + texts;
}

/// A key that is inflected, as it stands in a table.
inline std::string inflected(const std::string& key)
{
    return key + '\0' + key;
}
