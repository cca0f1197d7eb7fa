#include "Tools/orvelctl/calls/Terminal.h"

#include <cstdio>
#include <fmt/format.h>

namespace orvelctl {

Exit print(std::string_view text)
{
    const auto isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    return isWritten ? Exit::done : fail("standard output cannot be written");
}

Exit fail(std::string_view message, Exit exit)
{
    fmt::print(stderr, "orvelctl: {}\n", message);
    return exit;
}

std::string printable(std::string_view text)
{
    std::string line;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        const auto isSecondControl =
            byte == 0xC2 && index + 1 < text.size() && static_cast<unsigned char>(text[index + 1]) < 0xA0;
        if (byte < 0x20 || byte == 0x7F || isSecondControl) {
            line += "\uFFFD";
            index += isSecondControl ? 1 : 0;
        } else {
            line += text[index];
        }
    }
    return line;
}

}
