#include "OrvelPlatform/Base/TextColumns.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace orvel {

namespace {

constexpr UChar32 emojiSelector = 0xFE0F; // asks for the picture of what stands before it
constexpr UChar32 joiner = 0x200D; // makes one picture of those around it

bool isUnseen(UChar32 character)
{
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
    case U_CONTROL_CHAR:
        return true;
    default:
        return u_hasBinaryProperty(character, UCHAR_EMOJI_MODIFIER);
    }
}

std::size_t columnsOf(UChar32 character)
{
    if (isUnseen(character))
        return 0;
    const auto width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

}

std::size_t columns(std::string_view text)
{
    std::size_t columns = 0;
    std::size_t last = 0;
    auto isJoined = false;
    const auto characters = icu::UnicodeString::fromUTF8({ text.data(), static_cast<std::int32_t>(text.size()) });
    for (std::int32_t index = 0; index < characters.length(); index = characters.moveIndex32(index, 1)) {
        const auto character = characters.char32At(index);
        if (character == emojiSelector && last == 1) {
            ++columns;
            last = 2;
        }
        const auto width = isJoined ? 0 : columnsOf(character);
        isJoined = character == joiner;
        columns += width;
        last = width > 0 ? width : last;
    }
    return columns;
}

}
