#pragma once

#include <vector>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelShared/WidgetMoment.h"

namespace orvel {

/// What a widget shows from an instant on, until the next entry.
struct OrvelEntry {
    Date date;
    WidgetMoment moment; // the snapshot at that date
    bool operator==(const OrvelEntry&) const = default;
};

/// Entries in ascending order, and the instant after which the host asks for new ones.
struct OrvelTimeline {
    std::vector<OrvelEntry> entries;
    Date reload;
    bool operator==(const OrvelTimeline&) const = default;
};

}
