#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// A rule that makes an instant an entry of the timeline.
struct TimelineReason {
    /// The timeline begins here.
    struct Now {
        bool operator==(const Now&) const = default;
    };
    /// A phase of the snapshot, by its place among them, begins.
    struct PhaseStart {
        std::size_t phase;
        bool operator==(const PhaseStart&) const = default;
    };
    /// A day begins: tallies and the week roll over.
    struct Midnight {
        bool operator==(const Midnight&) const = default;
    };
    /// The countdown of a phase shows one minute less.
    struct CountdownMinute {
        std::size_t phase;
        std::int64_t minutesLeft;
        bool operator==(const CountdownMinute&) const = default;
    };
    using Any = std::variant<Now, PhaseStart, Midnight, CountdownMinute>;
};

/// The rules behind each of `dates`, which are those of a timeline of `snapshot` with the same arguments.
std::vector<std::vector<TimelineReason::Any>> timelineReasons(const WidgetSnapshot& snapshot,
    std::span<const Date> dates, Date from, const Calendar& calendar, Seconds countdownSpan);

}
