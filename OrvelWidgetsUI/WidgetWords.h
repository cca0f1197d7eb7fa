#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// The context of a widget's wording: whose clock times, and which day is today.
struct WidgetWords {
    const Locale& locale;
    const Calendar& calendar;
    Date now;

    /// The clock time of an instant.
    std::string time(Date date) const;

    /// When something starts: the time alone today, "Tomorrow 09:00", else the weekday and the time.
    std::string start(Date date) const;

    /// Whole minutes until an end, rounded up so that a countdown never shows 0 before it is over; 0 from then on.
    std::int64_t minutesUntil(Date end) const;

    /// The share of a span that is still to run, 0…1; 0 for a span that is empty.
    double shareLeft(Date start, Date end) const;

    /// The time until an end, whose words stay on one line.
    std::string remaining(Date end) const;
};

/// The word for a level.
std::string_view levelWord(WidgetSnapshot::Level level);

/// Names with something between them.
std::string joined(const std::vector<std::string>& names, std::string_view separator);

}
