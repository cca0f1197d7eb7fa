#pragma once

#include <cstdint>
#include <string>

/// Lists of apps and websites.
namespace orvel::Copy::Lists {

/// "1 app on this Mac", "2 apps on this Mac"
std::string appsOnThisMac(std::int64_t count);

}
