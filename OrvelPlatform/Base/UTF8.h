#pragma once

#include <cstddef>
#include <string_view>

namespace orvel {

/// Whether bytes from outside are well-formed UTF-8, the only encoding of text here.
bool isUTF8(std::string_view bytes);

/// The beginning of a UTF-8 text, of at most so many bytes, that ends where a character does.
std::string_view cutAtCharacter(std::string_view text, std::size_t mostBytes);

}
