#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What stands between the user and something blocked: the offer of a breath, the breath, the question after it, and
/// the offer to open what was blocked for a while.
namespace orvel::Copy::Pause {

// The offer of a breath.
std::string_view breatheFirst();
std::string_view notRightNow();
std::string_view lengthGroup();
std::string_view reset();
std::string_view settle();
std::string_view deep();
std::string_view begin();
std::string_view stayOff();
std::string_view escKey();

// During the breath.
std::string_view cueIn();
std::string_view cueHold();
std::string_view cueOut();
std::string_view cuePaused();
std::string_view captionsOn();
std::string_view captionsOff();
std::string_view soundOn();
std::string_view soundOff();
std::string_view pausedStatus();

// After it.
std::string_view howDoYouFeel();
std::string_view moodGroup();
std::string_view calmer();
std::string_view same();
std::string_view restless();
std::string_view breatheAgain();

// Where the breath stands.
std::string_view roomNoAccessibility();

/// "Mail is blocked until 12:00 by Deep work."
std::string blocked(std::string_view name, std::string_view until, std::string_view by);
/// "Deep work ends at 12:00. A breath can still help."
std::string firmContext(std::string_view block, std::string_view until);
/// "Mail isn’t blocked any more. The breath is still here if you want it."
std::string notBlocked(std::string_view name);
/// "Mail is blocked until 12:00 by Deep work. Breathe first."
std::string arrival(std::string_view context, std::string_view title);
/// "1 minute, Reset, 1 of 3", "3 minutes, Settle, 2 of 3", as it is spoken
std::string tileLabel(std::int64_t minutes, std::string_view name, std::int64_t position, std::int64_t of);
/// "Captions on · Sound off · esc ends the breath"
std::string status(std::string_view captions, std::string_view sound);
/// "Calm breath, 1 minute, 40% done", "Calm breath, 3 minutes, 40% done"; the breath here is always Calm
std::string playerLabel(std::int64_t minutes, std::int64_t percent);
/// "Open Mail for", before a choice of lengths
std::string openFor(std::string_view name);
/// "5 min", with a plain space
std::string openLength(std::int64_t minutes);
/// As `openLength`
std::string tileLength(std::int64_t minutes);
/// "Open Mail for 5 minutes"
std::string openLabel(std::string_view name, std::int64_t minutes);
/// "Deep work ends at 12:00."
std::string endsAt(std::string_view block, std::string_view time);
/// "Deep work ends at 12:00. Ultra Hard mode is on."
std::string endsAtUltraHard(std::string_view block, std::string_view time);
/// "You ended the breath early, so Mail stays closed for now."
std::string endedEarly(std::string_view name);
/// "That’s your 5 minutes."
std::string endedTitle(std::int64_t minutes);
/// "Mail rests again until 12:00."
std::string restsAgain(std::string_view name, std::string_view until);
/// "Mail’s window is too small to hold the breath, so it’s here instead. …"
std::string roomSmallWindow(std::string_view app);
/// "Mail is full screen, so the breath fills its Space. …"
std::string roomFullScreen(std::string_view app);

}
