#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/PosixRule.h"

namespace orvel {

/// The first bytes of all zone data.
inline constexpr std::string_view zoneDataMark = "TZif";

/// The bytes of a compiled zone file (the TZif format). Absent for what is no regular file, is longer than 1 MiB,
/// announces more than it holds or ends with no whole rule: a reader need not check these again.
std::optional<std::string> zoneDataFromFile(const std::filesystem::path& path);

/// Zone data that follows a rule from the year 1900 on; before it lies standard time.
std::string zoneDataFromRule(const PosixRule& rule);

}
