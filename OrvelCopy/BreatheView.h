#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The page of the breath: its styles, lengths, voice and sound, and the breaths taken of late.
namespace orvel::Copy::BreatheView {

// The styles, each with its rhythm.
std::string_view calm();
std::string_view reset();
std::string_view ground();
std::string_view calmDetail();
std::string_view resetDetail();
std::string_view groundDetail();

// The lengths: 1, 3 and 5 minutes.
std::string_view length();
/// "Reset", which is also the name of a style
std::string_view lengthOne();
std::string_view lengthThree();
std::string_view lengthFive();

// The way into a breath.
std::string_view begin();
std::string_view beginHint();
std::string_view opensInWindow();

// What is heard and read during a breath.
std::string_view voice();
std::string_view voiceOff();
std::string_view voiceLower();
std::string_view voiceHigher();
std::string_view sound();
std::string_view soundNone();
std::string_view soundRain();
std::string_view soundOcean();
std::string_view soundRoom();
std::string_view captions();
std::string_view captionsDetail();

// The reminder.
std::string_view breatheBreak();
std::string_view breatheBreakDetail();

// The breaths of late, and where each was started.
std::string_view recent();
std::string_view noRecent();
std::string_view yesterday();
std::string_view fromBreatheNow();
std::string_view fromBlocked();
std::string_view fromFirstRun();
std::string_view fromArrive();
std::string_view fromEndEarly();
std::string_view fromEmergency();
std::string_view fromWidget();

/// "3 min", held together by a no-break space
std::string minutes(std::int64_t minutes);
/// "1 minute, Reset", "3 minutes, Settle", as it is spoken
std::string minutesSpoken(std::int64_t minutes, std::string_view name);
/// "3 min · Calm", with a no-break space before "min"
std::string session(std::int64_t minutes, std::string_view style);
/// "From Widget"
std::string from(std::string_view source);

}
