#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// The moments of one snapshot, one after the other. The same as asking the snapshot for each, but its phases are
/// searched in halves, and the calendar is asked about its days once, and about a week once per day. That makes a
/// timeline cheap.
class WidgetMoments {
public:
    /// Both must outlive this.
    WidgetMoments(const WidgetSnapshot& snapshot, const Calendar& calendar);

    WidgetMoment moment(Date at);

private:
    /// The tallies as they stand on one calendar day, and a time that lies wholly within that day.
    struct Tallies {
        Date from;
        Date until;
        WidgetSnapshot::Day today;
        std::vector<WidgetSnapshot::Day> week;
    };

    WidgetSnapshot::State state(Date at) const;
    const Tallies& tallies(Date at);
    WidgetSnapshot::Day day(Date date) const;

    const WidgetSnapshot& m_snapshot;
    const Calendar& m_calendar;
    std::vector<const WidgetSnapshot::Phase*> m_steps; // that hold at some instant, ascending
    std::vector<std::chrono::local_days> m_days; // of the snapshot's days, in their order
    std::optional<Tallies> m_tallies; // of the day that was asked for last
};

}
