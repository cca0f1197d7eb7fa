#pragma once

#include <string>
#include <string_view>

namespace orvelctl {

/// How a call ends, as its exit status.
enum class Exit : int {
    done = 0,
    no = 1, // the answer is "no", or the data is bad
    wrongCall = 2,
};

/// Writes all of `text` to standard output. Output that nobody can take is bad news too.
Exit print(std::string_view text);

/// One line on standard error.
Exit fail(std::string_view message, Exit exit = Exit::no);

/// Text of unknown origin for one line of a terminal: control characters are shown, not obeyed.
std::string printable(std::string_view text);

}
