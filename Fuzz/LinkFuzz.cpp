// Any text is some link, and a link comes back from its own URL.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "OrvelShared/OrvelLink.h"

using namespace orvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto link = OrvelLink::fromURL({ text });
    if (OrvelLink::fromURL(link.url("orvel")) != link)
        std::abort();
    return 0;
}
