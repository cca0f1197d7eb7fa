#include "OrvelShared/TimelineReason.h"

#include <algorithm>

#include "OrvelShared/TimelinePlan.h"

namespace orvel {

namespace {

/// The dates of one timeline with their reasons, which are added a rule at a time.
class Reasons {
public:
    explicit Reasons(std::span<const Date> dates) : m_dates(dates), m_reasons(dates.size()) { }

    void add(Date date, TimelineReason::Any reason)
    {
        const auto found = std::ranges::lower_bound(m_dates, date);
        if (found != m_dates.end() && *found == date)
            m_reasons[static_cast<std::size_t>(found - m_dates.begin())].push_back(reason);
    }

    /// The dates among those of a countdown's ticks.
    void addCountdown(const CountdownTicks& ticks, std::size_t phase)
    {
        auto found = std::ranges::lower_bound(m_dates, ticks.first);
        for (; found != m_dates.end() && *found <= ticks.last; ++found) {
            const auto left = ticks.end - *found;
            if (left % countdownStep == std::chrono::microseconds { 0 })
                add(*found, TimelineReason::CountdownMinute { .phase = phase, .minutesLeft = left / countdownStep });
        }
    }

    bool reachesBeyond(Date date) const { return !m_dates.empty() && m_dates.back() > date; }

    std::vector<std::vector<TimelineReason::Any>> take() { return std::move(m_reasons); }

private:
    std::span<const Date> m_dates;
    std::vector<std::vector<TimelineReason::Any>> m_reasons;
};

}

std::vector<std::vector<TimelineReason::Any>> timelineReasons(const WidgetSnapshot& snapshot,
    std::span<const Date> dates, Date from, const Calendar& calendar, Seconds countdownSpan)
{
    Reasons reasons(dates);
    reasons.add(from, TimelineReason::Now {});
    if (!snapshot.isRunning)
        return reasons.take();
    const TimelinePlan plan(snapshot, from, calendar, countdownSpan);
    for (std::size_t index = 0; index < snapshot.phases.size(); ++index) {
        if (plan.showsStart(snapshot.phases[index]))
            reasons.add(snapshot.phases[index].start, TimelineReason::PhaseStart { index });
    }
    plan.forEachMidnight([&](Date midnight) {
        reasons.add(midnight, TimelineReason::Midnight {});
        return reasons.reachesBeyond(midnight);
    });
    for (std::size_t index = 0; index < snapshot.phases.size(); ++index) {
        if (const auto ticks = plan.countdownTicks(index))
            reasons.addCountdown(*ticks, index);
    }
    return reasons.take();
}

}
