#pragma once

#include <cstddef>
#include <string_view>

namespace orvel {

/// How many columns of a terminal a text takes: two for wide letters and emoji, one for a letter with all its marks,
/// none for what is not shown. Terminals differ on the rarest; this is what most of them do.
std::size_t columns(std::string_view text);

}
