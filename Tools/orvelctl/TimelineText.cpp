#include <fmt/format.h>
#include <fmt/ranges.h>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "Tools/orvelctl/PhaseName.h"
#include "Tools/orvelctl/Table.h"
#include "Tools/orvelctl/TimelineReport.h"
#include "Tools/orvelctl/calls/Terminal.h"

namespace orvelctl {

namespace {

using orvel::Date;
using orvel::TimelineReason;

/// "Wed 2026-03-04"
std::string dayText(Date date, const orvel::Calendar& calendar)
{
    constexpr const char* weekdays[] = { "Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat" };
    const std::chrono::year_month_day day { calendar.day(date) };
    return fmt::format("{} {:04}-{:02}-{:02}", weekdays[calendar.weekday(date) - 1], static_cast<int>(day.year()),
        static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
}

/// "10:48:00 CET": the zone's own word tells two equal clock times apart when clocks are put back.
std::string timeText(Date date, const orvel::Calendar& calendar)
{
    const auto wall = calendar.timeZone().wallTime(date);
    const std::chrono::hh_mm_ss time { std::chrono::floor<std::chrono::seconds>(
        wall - std::chrono::floor<std::chrono::days>(wall)) };
    return fmt::format("{:02}:{:02}:{:02} {}", time.hours().count(), time.minutes().count(), time.seconds().count(),
        calendar.timeZone().abbreviation(date));
}

std::string nameOrKind(const orvel::WidgetSnapshot& snapshot, std::size_t phase)
{
    const auto& state = snapshot.phases[phase].state;
    return printable(phaseName(state).value_or(std::string(phaseKind(state))));
}

std::string reasonText(const TimelineReason::Any& any, const orvel::WidgetSnapshot& snapshot)
{
    return std::visit(
        orvel::Match {
            [](TimelineReason::Now) -> std::string { return "now"; },
            [](TimelineReason::Midnight) -> std::string { return "midnight"; },
            [&](TimelineReason::PhaseStart start) {
                return fmt::format("phase {} begins ({})", start.phase, nameOrKind(snapshot, start.phase));
            },
            [&](TimelineReason::CountdownMinute minute) {
                return fmt::format("{} min left of {}", minute.minutesLeft, nameOrKind(snapshot, minute.phase));
            },
        },
        any);
}

}

std::string asText(const TimelineReport& report, const orvel::Locale& locale, const orvel::Calendar& calendar)
{
    Table table;
    std::string lastDay;
    for (std::size_t index = 0; index < report.timeline.entries.size(); ++index) {
        const auto& entry = report.timeline.entries[index];
        const auto day = dayText(entry.date, calendar);
        const auto content = orvel::WidgetContent::status(entry.moment, locale, calendar);
        std::vector<std::string> row { day == lastDay ? "" : day, timeText(entry.date, calendar),
            printable(content.title), printable(content.detail) };
        if (!report.reasons.empty()) {
            std::vector<std::string> why;
            for (const auto& reason : report.reasons[index])
                why.push_back(reasonText(reason, report.snapshot));
            row.push_back(fmt::format("{}", fmt::join(why, ", ")));
        }
        table.push_back(std::move(row));
        lastDay = day;
    }
    return fmt::format("{}\nReload after {} {}\n", aligned(table), dayText(report.timeline.reload, calendar),
        timeText(report.timeline.reload, calendar));
}

}
