#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Date.h"

/// The menu bar's popover: what runs and comes next, today's numbers, quick actions and notices of problems.
namespace orvel::Copy::Popover {

// What runs, and how firmly.
std::string_view groupLabel();
std::string_view focusTitle();
std::string_view nothingRunning();
std::string_view noBlocksToday();
std::string_view nothingThisWeek();
std::string_view gentle();
std::string_view firm();
std::string_view firmUltraHard();
/// `firmUltraHard` as it is spoken.
std::string_view ultraHardSpoken();

// Today's numbers.
std::string_view breaths();
std::string_view minBreathed();
std::string_view stayedOff();
std::string_view numbersEmpty();

// Actions.
std::string_view breatheNow();
std::string_view focusNow();
std::string_view endFocusEarly();
std::string_view endFocus();
std::string_view openOrvel();
std::string_view settings();
/// The product's web address.
std::string_view phoneSite();
/// The words on the button beside a problem.
std::string_view fix();

// Problems.
std::string_view noAccessibility();
std::string_view loginItem();
std::string_view switchedOff();
std::string_view switchedOffWhileClosed();

/// "Mail, Slack and 3 more"
std::string appsAndMore(std::string_view names, std::int64_t more);
/// "until 12:00 · 1 h 5 m left"
std::string until(std::string_view time, std::string_view left);
/// "Until 12:00 · 25 min left · Social, Chat"; without Lists "Until 12:00 · 25 min left"
std::string focusDetail(std::string_view until, std::int64_t minutesLeft, std::optional<std::string_view> lists);
/// "at 12:00", to stand inside a sentence as the next two do
std::string at(std::string_view time);
/// "tomorrow at 09:00"
std::string tomorrowAt(std::string_view time);
/// "on Wednesday at 09:00"
std::string onDayAt(std::string_view day, std::string_view time);
/// "Deep work starts tomorrow at 09:00", without a full stop
std::string firstStarts(std::string_view block, std::string_view when);
/// "Your first Block. Deep work starts at 09:00."
std::string firstDetail(std::string_view text);
/// "Ultra Hard mode: nothing ends it early. Orvel keeps running until 12:00."
std::string ultraHardNote(std::string_view until);
/// "Deep work, Gentle, until 12:00, Mail open for 4 minutes more"
std::string nowUnlockSentence(std::string_view name, std::string_view mode, std::string_view until,
    std::string_view target, std::string_view left);
/// The time that is left, as it is spoken, rounded up to whole minutes: "under a minute", "1 minute", "2 hours 1
/// minute". A span that is no number, or of more minutes than a 64-bit number holds, is a fault in the program and
/// stops the process.
std::string spoken(Seconds remaining);
/// "Today: 2 breaths, 6 minutes breathed, stayed off 3 times"
std::string numbers(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff);
/// "· 3 min", to stand after `breatheNow`
std::string breatheDetail(std::int64_t minutes);
/// "Safari needs permission. Websites in Safari aren’t blocked."
std::string browserNeedsPermission(std::string_view browser);
/// "Blocking is paused. It starts again at 12:00."; without a text "Blocking is paused."
std::string blockingPaused(std::optional<std::string_view> text);

}
