#include "OrvelPlatform/Base/UUID.h"

namespace orvel {

namespace {

constexpr std::string_view hexadecimal = "0123456789ABCDEF";

/// Where the text has a hyphen before the digits of this byte.
constexpr bool followsHyphen(std::size_t byte)
{
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

std::optional<std::uint8_t> hexadecimalDigit(char character)
{
    const auto upper = character >= 'a' && character <= 'f' ? static_cast<char>(character - 'a' + 'A') : character;
    const auto index = hexadecimal.find(upper);
    if (index == std::string_view::npos)
        return std::nullopt;
    return static_cast<std::uint8_t>(index);
}

}

std::optional<UUID> UUID::fromText(std::string_view text)
{
    if (text.size() != 36)
        return std::nullopt;
    UUID uuid {};
    std::size_t position = 0;
    for (std::size_t index = 0; index < uuid.bytes.size(); ++index) {
        if (followsHyphen(index) && text[position++] != '-')
            return std::nullopt;
        const auto high = hexadecimalDigit(text[position++]);
        const auto low = hexadecimalDigit(text[position++]);
        if (!high || !low)
            return std::nullopt;
        uuid.bytes[index] = static_cast<std::uint8_t>(*high << 4 | *low);
    }
    return uuid;
}

std::string UUID::text() const
{
    std::string text;
    text.reserve(36);
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        if (followsHyphen(index))
            text += '-';
        text += hexadecimal[bytes[index] >> 4];
        text += hexadecimal[bytes[index] & 0xF];
    }
    return text;
}

}
