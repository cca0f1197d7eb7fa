#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What the widgets show and speak.
namespace orvel::Copy::Widgets {

// In the gallery of widgets.
std::string_view statusName();
std::string_view statusDescription();
/// "Breathe Now", the name of a widget and so in capitals; the words on the button are `breatheNow`.
std::string_view breatheName();
std::string_view breatheDescription();

// What holds, and how firmly.
std::string_view now();
std::string_view next();
std::string_view focus();
std::string_view paused();
std::string_view gentle();
std::string_view firm();
std::string_view ultraHard();

// Where nothing keeps things quiet.
std::string_view pausedTitle();
std::string_view pausedSmall();
std::string_view noBlocks();
std::string_view noBlocksSmall();
std::string_view noBlocksDetail();
std::string_view nothingScheduled();
std::string_view nothingScheduledSmall();
std::string_view nothingScheduledDetail();

// The figures.
std::string_view breaths();
std::string_view minutesBreathed();
std::string_view stayedOff();
std::string_view stayedOffThisWeek();
std::string_view breatheNow();
std::string_view todayEmpty();

/// "until 12:00"
std::string until(std::string_view time);
/// "ends 12:00"
std::string ends(std::string_view time);
/// "Tomorrow 09:00"
std::string tomorrow(std::string_view time);
/// "Wed 09:00"
std::string onDay(std::string_view day, std::string_view time);
/// "Until 12:00 · 1 h 5 m left"
std::string untilLeft(std::string_view time, std::string_view left);
/// "Mail open until 12:00"
std::string openUntil(std::string_view name, std::string_view time);
/// "25 min left"
std::string minutesLeft(std::int64_t minutes);
/// "Ends at 12:00 · Social, Chat"; without Lists "Ends at 12:00"
std::string endsAt(std::string_view time, std::optional<std::string_view> lists);
/// "Tomorrow 09:00 · Firm"
std::string startsMode(std::string_view when, std::string_view mode);
/// "Tomorrow 09:00 – 10:30 · Firm"
std::string spanMode(std::string_view start, std::string_view end, std::string_view mode);
/// "Your 2 Blocks are saved."; for exactly 0 "Open Orvel to block again."
std::string pausedDetail(std::int64_t blocks);
/// "Breathe now · 3 min"
std::string breatheNowFor(std::int64_t minutes);
/// "3 min · Calm"
std::string session(std::int64_t minutes, std::string_view style);
/// The word for a style of breath: exactly "reset" and "ground" have their own, all else is "Calm".
std::string style(std::string_view style);
/// "Orvel. Now: Deep work, Until 12:00. Today: …"
std::string sentence(
    std::optional<std::string_view> kicker, std::string_view title, std::string_view detail, std::string_view today);
/// "Today: 2 breaths, 6 minutes breathed, stayed off 3 times."
std::string todaySentence(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff);
/// "Orvel, Breathe now, 3 minute. Opens a breath."
std::string breatheSentence(std::int64_t minutes);

}
