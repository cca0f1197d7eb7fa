// Compares the calendar with the C library around every change of clocks from 2026 to 2037, in every zone of the
// system's database. Prints each disagreement and a summary; fails if there is any.

#include <algorithm>
#include <filesystem>
#include <fmt/format.h>
#include <map>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "Tests/OrvelPlatform/Base/SlowCalendar.h"

using namespace orvel;

namespace {

namespace fs = std::filesystem;
using Instant = SlowCalendar::Instant;
using std::chrono::seconds;

constexpr Instant firstInstant = std::chrono::sys_days { std::chrono::year { 2026 } / 1 / 1 };
constexpr Instant lastInstant = std::chrono::sys_days { std::chrono::year { 2038 } / 1 / 1 };

struct Tally {
    int zones = 0, changes = 0, questions = 0, mktimes = 0, disagreements = 0;
};

std::vector<std::string> zoneNames()
{
    const fs::path folder = "/usr/share/zoneinfo";
    std::vector<std::string> names;
    for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::end(entry); ++entry) {
        const auto name = entry->path().lexically_relative(folder).string();
        if (name == "posix" || name == "right") // the same once more; with leap seconds counted
            entry.disable_recursion_pending();
        else if (TimeZone::named(name))
            names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

/// Every change of the offset, by looking at each half hour.
std::vector<Instant> changes(const SlowCalendar& slow)
{
    std::vector<Instant> found;
    for (auto start = firstInstant; start < lastInstant; start += std::chrono::minutes { 30 }) {
        auto before = start;
        auto after = start + std::chrono::minutes { 30 };
        if (slow.offset(before) == slow.offset(after))
            continue;
        while (after - before > seconds { 1 }) {
            const auto middle = before + (after - before) / 2;
            (slow.offset(middle) == slow.offset(before) ? before : after) = middle;
        }
        found.push_back(after);
    }
    return found;
}

/// One zone, asked of both.
class Comparison {
public:
    Comparison(const std::string& name, Tally& tally)
        : m_name(name), m_tally(tally), m_slow(name), m_calendar(TimeZone::named(name).value())
    {
    }

    void run()
    {
        ++m_tally.zones;
        const auto changed = changes(m_slow);
        compareChanges(changed);
        // Where clocks are never set, the turns of two years stand in for changes.
        for (const auto change : changed.empty() ? std::vector { firstInstant, lastInstant } : changed)
            compareAround(change);
    }

private:
    void compareChanges(const std::vector<Instant>& changed)
    {
        auto next = m_calendar.timeZone().nextChange(firstInstant);
        for (const auto change : changed) {
            ++m_tally.changes;
            expect("nextChange", change, next, change);
            next = m_calendar.timeZone().nextChange(change);
        }
        expect("no nextChange", lastInstant, next && *next < lastInstant, false);
    }

    void compareAround(Instant change)
    {
        std::vector<Instant> instants { change };
        for (auto day = -1; day <= 2; ++day)
            instants.push_back(startOfDay(change + std::chrono::days { day }));
        for (const auto day : { -1, 1 }) {
            instants.push_back(change + std::chrono::days { day });
            instants.push_back(change + std::chrono::days { day } + std::chrono::minutes { 30 });
            instants.push_back(change + std::chrono::days { day } - std::chrono::minutes { 30 });
        }
        for (const auto instant : instants)
            for (auto shift = -1; shift <= 1; ++shift)
                compareAt(instant + seconds { shift });
    }

    void compareAt(Instant instant)
    {
        expect("offset", instant, m_calendar.timeZone().offset(instant), m_slow.offset(instant));
        expect("wallTime", instant, m_calendar.timeZone().wallTime(instant), m_slow.wallTime(instant));
        expect("abbreviation", instant, m_calendar.timeZone().abbreviation(instant), m_slow.abbreviation(instant));
        expect("weekday", instant, m_calendar.weekday(instant), m_slow.weekday(instant));
        expect("startOfDay", instant, m_calendar.startOfDay(instant), startOfDay(instant));
        for (const auto days : { -1, 1 }) {
            const auto sum = m_calendar.addingDays(days, instant).value();
            expect("addingDays", instant, sum, m_slow.addingDays(days, instant));
            compareMktime(instant, days, sum);
        }
    }

    /// The C library's own way to an instant, where only one fits.
    void compareMktime(Instant instant, int days, Date sum)
    {
        const auto wall = m_calendar.timeZone().wallTime(instant) + std::chrono::days { days };
        if (m_calendar.timeZone().instants(wall).meeting != TimeZone::Meeting::once)
            return;
        ++m_tally.mktimes;
        expect("mktime", instant, sum, m_slow.instant(std::chrono::floor<seconds>(wall)));
    }

    Instant startOfDay(Instant instant)
    {
        const auto [start, isNew] = m_starts.try_emplace(m_slow.day(instant));
        if (isNew)
            start->second = m_slow.startOfDay(instant);
        return start->second;
    }

    template <typename Ours, typename Theirs>
    void expect(std::string_view question, Instant instant, const Ours& ours, const Theirs& theirs)
    {
        ++m_tally.questions;
        if (ours == theirs)
            return;
        ++m_tally.disagreements;
        fmt::print("{} {} {}\n", m_name, iso8601(instant).value(), question);
    }

    std::string m_name;
    Tally& m_tally;
    SlowCalendar m_slow;
    Calendar m_calendar;
    std::map<std::chrono::local_days, Instant> m_starts;
};

}

int main()
{
    Tally tally;
    for (const auto& name : zoneNames())
        Comparison(name, tally).run();
    fmt::print("{} zones, {} changes, {} questions ({} to mktime), {} disagreements\n", tally.zones, tally.changes,
        tally.questions, tally.mktimes, tally.disagreements);
    return tally.zones == 0 || tally.disagreements > 0 ? 1 : 0;
}
