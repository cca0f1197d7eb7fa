#include "OrvelCopy/Lists.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Lists {

std::string appsOnThisMac(std::int64_t count)
{
    return count == 1 ? localized(KEY("1 app on this Mac")) : localized(COUNTED("%lld apps on this Mac"), count);
}

}
