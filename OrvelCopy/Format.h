#pragma once

#include <string>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Base/TimeZone.h"

/// Times of day and spans in the short forms that widgets, controls and the application show.
///
/// A negative span counts as 0, and so does one that is not a number. A span of more minutes (or seconds, of a
/// countdown) than a 64-bit number holds is a fault in the program and stops the process.
namespace orvel::Format {

/// The time of day in the locale's short style, without a date: "12:00", "12:00 PM".
std::string time(WallTime wallTime, const Locale& locale);

/// The same for an instant, as clocks in `timeZone` show it.
inline std::string time(Date date, const Locale& locale, const TimeZone& timeZone)
{
    return time(timeZone.wallTime(date), locale);
}

/// The time that is left, rounded up to whole minutes: "under a minute", "38 m", "1 h", "1 h 12 m".
std::string remaining(Seconds seconds);

/// Minutes and two digits of seconds, rounded up to whole seconds, in every language alike: "4:05", "62:05".
std::string countdown(Seconds seconds);

/// Whole minutes, rounded up: "5m".
std::string shortMinutes(Seconds seconds);

/// A total, rounded to the nearest minute, a half up: "38 m", "2 h 0 m".
std::string screenTime(Seconds seconds);

}
