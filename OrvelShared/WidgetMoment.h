#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// What holds at one instant: a snapshot as one widget entry shows it.
struct WidgetMoment {
    Date date;
    WidgetSnapshot::State state;
    bool isRunning;
    std::int64_t blockCount;
    WidgetSnapshot::Day today;
    std::vector<WidgetSnapshot::Day>
        week; // the seven days that end with `date`'s, oldest first; days without a tally are empty
    WidgetSnapshot::Breath breathe;
    std::int64_t focusMinutes;

    /// The running Focus whose end is still ahead. Absent while blocking is paused, for a Focus without an end and for
    /// any other state.
    std::optional<WidgetSnapshot::Running> focus() const;

    bool operator==(const WidgetMoment&) const = default;
};

}
