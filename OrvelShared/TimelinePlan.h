#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Date.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// A minute of a countdown, and with it every tick of one.
inline constexpr std::chrono::minutes countdownStep { 1 };

/// The ticks of one phase's countdown: from `first` to `last`, a minute apart. They lie whole minutes before `end`.
struct CountdownTicks {
    Date first;
    Date last;
    Date end;
};

/// The rules that make an instant an entry of the timeline, for one request.
///
/// A plan is asked twice: for the dates themselves, and for the reason behind each.
class TimelinePlan {
public:
    /// `snapshot` and `calendar` must outlive this.
    TimelinePlan(const WidgetSnapshot& snapshot, Date from, const Calendar& calendar, Seconds countdownSpan);

    /// A phase change that the timeline shows.
    bool showsStart(const WidgetSnapshot::Phase& phase) const;

    /// The midnights ahead in ascending order, for as long as `use` wants another. After a day without a midnight they
    /// stay at the hour to which that day's start was moved.
    void forEachMidnight(const std::function<bool(Date)>& use) const;

    /// The ticks of the phase at `index`; absent where it counts nothing down within the span.
    std::optional<CountdownTicks> countdownTicks(std::size_t index) const;

private:
    const WidgetSnapshot& m_snapshot;
    const Calendar& m_calendar;
    Date m_from;
    Date m_end; // no entry is planned beyond it
    Date m_countdownLimit;
};

}
