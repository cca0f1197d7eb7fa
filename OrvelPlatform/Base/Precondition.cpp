#include "OrvelPlatform/Base/Precondition.h"

#include <cstdio>
#include <cstdlib>

namespace orvel {

void fatalError(std::string_view message)
{
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

}
