#pragma once

#include <string_view>

namespace orvel {

/// Whether bytes from outside are well-formed UTF-8, the only encoding of text here.
bool isUTF8(std::string_view bytes);

}
