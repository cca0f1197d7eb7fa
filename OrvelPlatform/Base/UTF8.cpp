#include "OrvelPlatform/Base/UTF8.h"

#include <algorithm>
#include <simdjson.h>

namespace orvel {

bool isUTF8(std::string_view bytes)
{
    return simdjson::validate_utf8(bytes.data(), bytes.size());
}

std::string_view cutAtCharacter(std::string_view text, std::size_t mostBytes)
{
    const auto continuesCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    auto end = std::min(text.size(), mostBytes);
    while (end < text.size() && end > 0 && continuesCharacter(text[end]))
        --end;
    return text.substr(0, end);
}

}
