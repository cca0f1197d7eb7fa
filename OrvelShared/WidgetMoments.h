#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// The moments of one snapshot, one after the other. The same as asking the snapshot for each, but the calendar is
/// asked about its days once, and about a week once per day, which makes a timeline cheap.
class WidgetMoments {
public:
    /// Both must outlive this.
    WidgetMoments(const WidgetSnapshot& snapshot, const Calendar& calendar);

    WidgetMoment moment(Date at);

private:
    /// The tallies as they stand on one calendar day.
    struct Tallies {
        std::chrono::local_days day;
        WidgetSnapshot::Day today;
        std::vector<WidgetSnapshot::Day> week;
    };

    const Tallies& tallies(Date at);
    WidgetSnapshot::Day day(Date date) const;

    const WidgetSnapshot& m_snapshot;
    const Calendar& m_calendar;
    std::vector<std::chrono::local_days> m_days; // of the snapshot's days, in their order
    std::optional<Tallies> m_tallies; // of the day that was asked for last
};

}
