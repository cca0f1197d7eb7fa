#pragma once

#include <string_view>

namespace orvel {

/// Stops the process with a message on standard error: the program itself is at fault, not what it was given.
[[noreturn]] void fatalError(std::string_view message);

/// What a caller promised; a breach is a fault in the program and stops the process with `message`.
inline void precondition(bool holds, std::string_view message)
{
    if (!holds) [[unlikely]]
        fatalError(message);
}

}
