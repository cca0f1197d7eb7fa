#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Answers to requests that are made outside the application, and their refusals.
namespace orvel::Copy::Shortcuts {

// Answers that name nothing.
std::string_view noSuchBlock();
std::string_view nothingToFocusOn();
std::string_view focusEnded();
std::string_view noFocus();
std::string_view somethingRunning();
std::string_view nothingRunning();
std::string_view breathing();
std::string_view notReady();

/// Where a request came from; a refusal names it.
enum class Surface {
    shortcut, // or an intent that the system runs
    controlCenter,
};

/// "Deep work is Firm until 12:00, so a shortcut can’t turn it off. …", and the way out that a Firm Block has
std::string firmRefusal(std::string_view name, std::string_view until, Surface from);
/// "Deep work is in Ultra Hard mode until 12:00, so a shortcut can’t turn it off. …", and that there is no way out
std::string ultraHardRefusal(std::string_view name, std::string_view until, Surface from);
/// "Deep work is Firm, so a shortcut can’t turn it off. …"
std::string firmBlockOff(std::string_view name);
/// "Deep work is in Ultra Hard mode, so a shortcut can’t turn it off. …"
std::string ultraHardBlockOff(std::string_view name);
/// "Deep work is on."
std::string blockOn(std::string_view name);
/// "Deep work is off."
std::string blockOff(std::string_view name);
/// "Deep work was already on.", "Deep work was already off."
std::string blockAlready(std::string_view name, bool on);
/// "Focus started: 25 minutes, until 12:00."
std::string focusStarted(std::int64_t minutes, std::string_view until);
/// "A Focus is already running until 12:00."
std::string focusAlreadyRunning(std::string_view until);
/// "Yes. Deep work is running until 12:00."
std::string running(std::string_view name, std::string_view until);
/// "No. Deep work isn’t running now."
std::string notRunning(std::string_view name);
/// "2 breaths, 6 minutes breathed, stayed off 3 times."
std::string todaysNumbers(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff);

}
