#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The page that stands in a browser's tab before a blocked website opens: its breath, the cues and the question after.
namespace orvel::Copy::TabPage {

// The page, and the question that it ends with.
std::string_view pageTitle();
std::string_view breatheFirst();
std::string_view notRightNow();
std::string_view begin();
std::string_view stayOff();
std::string_view question();

// During the breath.
std::string_view cueIn();
std::string_view cueHold();
std::string_view cueOut();
std::string_view status();

// The lengths: 1, 3 and 5 minutes.
std::string_view reset();
std::string_view settle();
std::string_view deep();

// The answers to the question.
std::string_view calmer();
std::string_view same();
std::string_view restless();

/// "3 minute, Settle", as it is spoken; the word is never plural
std::string spokenLength(std::int64_t minutes, std::string_view name);
/// "Deep work ends at 12:00."
std::string endsAt(std::string_view name, std::string_view time);
/// "Opening Mail…"
std::string opening(std::string_view name);

}
