#pragma once

#include <chrono>
#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// An absolute instant, in whole microseconds since 1970-01-01 00:00 UTC.
///
/// What comes from outside lies in the years 1 to 9999; readers of dates turn others away, so that sums of dates and
/// spans never overflow.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// What a clock on a wall shows. A zone is needed to make it an instant, and there is no implicit way across.
using WallTime = std::chrono::local_time<std::chrono::microseconds>;

/// A span as the product states it: seconds, with a fraction.
using Seconds = std::chrono::duration<double>;

/// The first instant of the year 1 and the last of the year 9999.
inline constexpr Date earliestDate = std::chrono::sys_days { std::chrono::year { 1 } / 1 / 1 };
inline constexpr Date latestDate =
    std::chrono::sys_days { std::chrono::year { 10000 } / 1 / 1 } - std::chrono::microseconds { 1 };

constexpr bool isWithinYears1To9999(Date date)
{
    return date >= earliestDate && date <= latestDate;
}

/// The present instant.
Date now();

/// Reads exactly `YYYY-MM-DDThh:mm:ss` and then `Z` or `±hh:mm`: the form that files use. Fractions, lower-case
/// letters, other spellings of the offset and dates that no calendar has are absent.
std::optional<Date> dateFromISO8601(std::string_view text);

/// The same, also with a fraction of one to six digits: the form that a person may type.
std::optional<Date> dateFromISO8601WithFraction(std::string_view text);

/// In UTC with whole seconds, as files are written: 2026-03-02T09:00:00Z. A part of a second is floored, also before
/// 1970. A fault outside the years 1 to 9999, which the form cannot show.
std::expected<std::string, Fault> iso8601(Date date);

/// In UTC with a fraction of 3 or 6 digits when the instant has one, as tools print it. Same fault.
std::expected<std::string, Fault> iso8601WithFraction(Date date);

}
