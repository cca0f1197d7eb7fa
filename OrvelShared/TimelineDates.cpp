#include <algorithm>
#include <queue>
#include <tuple>

#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelShared/TimelinePlan.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

namespace {

/// How many dates a rule may add: more than the limit could never be kept.
using Limit = std::size_t;

void addPhaseStarts(std::vector<Date>& dates, const WidgetSnapshot& snapshot, const TimelinePlan& plan)
{
    for (const auto& phase : snapshot.phases) {
        if (plan.showsStart(phase))
            dates.push_back(phase.start);
    }
}

void addMidnights(std::vector<Date>& dates, const TimelinePlan& plan, Limit limit)
{
    plan.forEachMidnight([&, left = limit](Date midnight) mutable {
        if (left == 0)
            return false;
        --left;
        dates.push_back(midnight);
        return true;
    });
}

/// The part of a minute at which a countdown ticks. Countdowns that share it tick together.
std::chrono::microseconds beat(const CountdownTicks& ticks)
{
    return ticks.first - std::chrono::floor<std::chrono::minutes>(ticks.first);
}

/// The same ticks without repeats: what overlaps or follows on the same beat becomes one run.
std::vector<CountdownTicks> united(std::vector<CountdownTicks> runs)
{
    std::ranges::sort(runs, {}, [](const auto& run) { return std::tuple(beat(run), run.first); });
    std::vector<CountdownTicks> united;
    for (const auto& run : runs) {
        const auto continues =
            !united.empty() && beat(united.back()) == beat(run) && run.first <= united.back().last + countdownStep;
        if (continues)
            united.back().last = std::max(united.back().last, run.last);
        else
            united.push_back(run);
    }
    return united;
}

/// The earliest ticks of all countdowns. Runs are merged a tick at a time, so that a hundred thousand long ones cost no
/// more than the ticks that are kept.
void addCountdownMinutes(
    std::vector<Date>& dates, const WidgetSnapshot& snapshot, const TimelinePlan& plan, Limit limit)
{
    std::vector<CountdownTicks> runs;
    for (std::size_t index = 0; index < snapshot.phases.size(); ++index) {
        if (const auto ticks = plan.countdownTicks(index))
            runs.push_back(*ticks);
    }
    const auto later = [](const auto& run, const auto& other) { return run.first > other.first; };
    std::priority_queue ahead(later, united(std::move(runs)));
    for (; limit > 0 && !ahead.empty(); --limit) {
        auto run = ahead.top();
        ahead.pop();
        dates.push_back(run.first);
        run.first += countdownStep;
        if (run.first <= run.last)
            ahead.push(run);
    }
}

}

std::vector<Date> WidgetSnapshot::timelineDates(
    Date from, const Calendar& calendar, Seconds countdownSpan, std::int64_t limit) const
{
    precondition(limit >= 0, "a timeline cannot have fewer than 0 dates");
    std::vector<Date> dates { from };
    if (!isRunning)
        return dates;
    const TimelinePlan plan(*this, from, calendar, countdownSpan);
    const auto most = static_cast<Limit>(limit);
    addPhaseStarts(dates, *this, plan);
    addMidnights(dates, plan, most);
    addCountdownMinutes(dates, *this, plan, most);

    std::ranges::sort(dates);
    const auto repeats = std::ranges::unique(dates);
    dates.erase(repeats.begin(), repeats.end());
    dates.resize(std::min(dates.size(), most));
    return dates;
}

Date WidgetSnapshot::reloadDate(const std::vector<Date>& after, Date now) const
{
    if (!after.empty() && after.back() > now)
        return after.back();
    if (horizon > now)
        return horizon;
    return now + std::chrono::hours { 6 };
}

}
