#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelShared/TimelineReason.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgets/OrvelEntry.h"

namespace orvelctl {

/// A timeline with the rules behind each entry.
struct TimelineReport {
    const orvel::WidgetSnapshot& snapshot;
    orvel::OrvelTimeline timeline;
    std::vector<std::vector<orvel::TimelineReason::Any>> reasons; // one list an entry; empty when nobody asked
};

/// For a program. A fault where the record holds what JSON cannot show.
std::expected<std::string, orvel::Fault> asJson(TimelineReport report);

/// For a person: one line an entry, with clock times in the calendar's zone and the status widget's title and detail.
std::string asText(const TimelineReport& report, const orvel::Locale& locale, const orvel::Calendar& calendar);

}
