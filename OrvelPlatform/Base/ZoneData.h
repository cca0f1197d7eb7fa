#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orvel {

/// The first bytes of all zone data.
inline constexpr std::string_view zoneDataMark = "TZif";

/// The bytes of a compiled zone file (the TZif format). Absent for what is no regular file, is longer than 1 MiB,
/// announces more than it holds or ends with a rule that leaves the dates of summer time open: a reader need not check
/// these again.
std::optional<std::string> zoneDataFromFile(const std::filesystem::path& path);

/// Zone data that follows a POSIX rule ("CET-1CEST,M3.5.0,M10.5.0/3") from the year 1900 on; before it lies standard
/// time. A summer time without dates has those that the C library assumes: M3.2.0,M11.1.0. Absent where not even the
/// standard time can be read; what follows it is the reader's to judge.
std::optional<std::string> zoneDataFromRule(std::string_view rule);

}
