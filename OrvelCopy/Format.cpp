#include "OrvelCopy/Format.h"

#include <cmath>
#include <cstdint>
#include <fmt/format.h>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelPlatform/Base/Precondition.h"

namespace orvel::Format {

namespace {

using Copy::localized;

constexpr std::int64_t minutesOfAnHour = 60;

/// The span in seconds with what lies below 0, and what is no number, raised to 0.
double raised(Seconds seconds) { return seconds.count() > 0 ? seconds.count() : 0; }

std::int64_t wholeNumber(double rounded)
{
    constexpr auto limit = 9223372036854775808.0; // 2^63, the first that a 64-bit number does not hold
    precondition(rounded < limit, "a span has more minutes or seconds than a 64-bit number holds");
    return static_cast<std::int64_t>(rounded);
}

std::int64_t minutesRoundedUp(Seconds seconds) { return wholeNumber(std::ceil(raised(seconds) / 60)); }

std::string hoursAndMinutes(std::int64_t minutes)
{
    // TRANSLATORS: %1$lld hours, %2$lld minutes of a span
    return localized(KEY("%lld h %lld m"), minutes / minutesOfAnHour, minutes % minutesOfAnHour);
}

// TRANSLATORS: %lld minutes of a span
std::string minutesAlone(std::int64_t minutes) { return localized(COUNTED("%lld m"), minutes); }

}

std::string time(WallTime wallTime, const Locale& locale) { return locale.time(wallTime); }

std::string remaining(Seconds seconds)
{
    const auto minutes = minutesRoundedUp(seconds);
    if (seconds < Seconds { 60 })
        return localized(KEY("under a minute"));
    if (minutes < minutesOfAnHour)
        return minutesAlone(minutes);
    // TRANSLATORS: %lld hours of a span
    return minutes % minutesOfAnHour == 0 ? localized(COUNTED("%lld h"), minutes / minutesOfAnHour)
                                          : hoursAndMinutes(minutes);
}

std::string countdown(Seconds seconds)
{
    const auto total = wholeNumber(std::ceil(raised(seconds)));
    return fmt::format("{}:{:02}", total / 60, total % 60);
}

std::string shortMinutes(Seconds seconds)
{
    // TRANSLATORS: %lld minutes, as short as can be
    return localized(COUNTED("%lldm"), minutesRoundedUp(seconds));
}

std::string screenTime(Seconds seconds)
{
    const auto minutes = wholeNumber(std::round(raised(seconds) / 60));
    return minutes < minutesOfAnHour ? minutesAlone(minutes) : hoursAndMinutes(minutes);
}

}
