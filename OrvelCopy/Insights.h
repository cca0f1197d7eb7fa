#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The insights page: the range, the chart and its spoken form, screen time, moods and the quiet tally.
namespace orvel::Copy::Insights {

// The range and the chart.
std::string_view lastSevenDays();
std::string_view lastThirtyDays();
std::string_view firstWeek();
std::string_view screenTime();
std::string_view legend();
std::string_view legendMonth();
std::string_view adding();
/// `adding` as it is spoken.
std::string_view addingSpoken();
std::string_view notMeasured();
/// The ranges as they stand inside a spoken sentence.
std::string_view rangeWeekSpoken();
std::string_view rangeMonthSpoken();

// How often the user stayed off something blocked.
std::string_view nothingReached();
std::string_view stayedOffWeek();
std::string_view stayedOffMonth();

std::string_view daysBreathed();
std::string_view mostReachedFor();

// Moods after a breath.
std::string_view afterBreath();
std::string_view calmer();
std::string_view same();
std::string_view restless();

// The quiet tally.
std::string_view alsoTitle();
std::string_view endedEarly();
std::string_view emergencyExits();
std::string_view bypassed();
std::string_view alsoNote();

/// "The last 7 days · 12 breaths, 38 minutes breathed."
std::string summary(std::string_view range, std::int64_t breaths, std::string_view minutes);
/// "59 minutes", "1 hour", "2 hours 15 minutes"
std::string minutes(std::int64_t minutes);
/// "So far: 2 breaths, and you stayed off once."; without any "Nothing yet. …"
std::string soFar(std::int64_t breaths, std::int64_t stayedOff);
/// "About 2 h 5 m a day"
std::string aboutADay(std::string_view length);
/// "2 h 5 m so far. The rest of your first week fills in here, …"
std::string firstWeekSoFar(std::string_view text);
/// "Screen time, the last 7 days, about 2 hours a day. Monday 3 hours, 1 breath. …"
std::string chartSentence(std::string_view range, std::optional<std::string_view> average, std::string_view days);
/// "Monday 3 hours, 1 breath.", "… no breaths.", "… 2 breaths."
std::string chartDay(std::string_view day, std::string_view time, std::int64_t breaths);
/// "You stayed off 3 of 5 times."
std::string stayedOff(std::int64_t times, std::int64_t of);
/// "3 of 7 days"
std::string daysOf(std::int64_t days, std::int64_t total);
/// "once", "2 times"
std::string times(std::int64_t count);
/// "38%"
std::string percent(std::int64_t percent);
/// "From 12 check-ins with a mood."
std::string moodsNote(std::int64_t checkIns);

}
