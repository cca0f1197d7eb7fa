#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The sheets: starting a Focus, the safety sheet before Ultra Hard mode, ending early and emergency exits.
namespace orvel::Copy::Sheets {

std::string_view cancel();

// The phases of a breath.
std::string_view cueIn();
std::string_view cueHold();
std::string_view cueOut();

// Starting a Focus.
std::string_view focusTitle();
std::string_view length();
std::string_view keepQuiet();
std::string_view howFirm();
std::string_view gentle();
std::string_view firm();
std::string_view focusGentle();
std::string_view focusFirm();
std::string_view arrive();
std::string_view startFocus();
std::string_view pickAList();

// The breath with which a Focus begins.
std::string_view arriveTitle();
std::string_view arriveDetail();
std::string_view startNow();

// What Ultra Hard mode means, before it is turned on.
std::string_view safetyTitle();
std::string_view safetyQuit();
std::string_view safetyRelaunch();
std::string_view safetyDelete();
std::string_view safetyDeleteGuarded();
std::string_view safetyDeleteGuardedAdmin();
std::string_view safetyNeverBlocked();
std::string_view safetyLength();
std::string_view willBeBlocked();
std::string_view checkYourList();
std::string_view games();
std::string_view checked();
std::string_view turnOnUltraHard();
std::string_view tickFirst();
std::string_view nothingBlockedYet();

// Ending early.
std::string_view keepGoing();
std::string_view endedNotice();
std::string_view close();

// The emergency exit.
std::string_view emergencyTitle();
std::string_view endIt();
std::string_view noneLeftDetail();
std::string_view noneLeftDetailGuarded();
std::string_view ok();

/// "0:42 left · Captions on", "0:42 left"
std::string timeLeft(std::string_view time, bool captions);
/// "Ends at 12:00."
std::string endsAt(std::string_view time);
/// "Ultra Hard mode makes Deep work very hard to get around. …"
std::string safetyIntro(std::string_view name);
/// "Nothing ends Deep work early. …"
std::string safetyNoEnd(std::string_view name);
/// The one of the three texts on moving the application to the Bin that holds where the guard is installed or not, and
/// where the user is an administrator or not.
std::string safetyDelete(bool guarded, bool admin);
/// "Whole categories: Games, Social"
std::string wholeCategories(std::string_view names);
/// "Ending Deep work early"
std::string endingTitle(std::string_view name);
/// "Deep work is Firm, so ending it takes a 3-minute breath first. …"
std::string endingDetail(std::string_view name);
/// "Keep Deep work", the words on a button
std::string keep(std::string_view name);
/// "Still want to end Deep work?"
std::string stillWant(std::string_view name);
/// "It’s okay either way. Ending now turns Deep work off until 12:00."
std::string endingTurnsOff(std::string_view name, std::string_view backAt);
/// "It’s okay either way. Ending now ends Focus for good."
std::string endingFocus(std::string_view name);
/// "End Deep work", the words on a button
std::string end(std::string_view name);
/// "Then you can decide. Leaving the breath before it ends keeps Deep work in Ultra Hard mode."
std::string emergencyDetail(std::string_view name);
/// "End Ultra Hard mode for Deep work?"
std::string emergencyQuestion(std::string_view name);
/// "This uses 1 of your 2 emergency exits this month."; with 1 `left` it "uses your last"
std::string emergencyUses(std::int64_t left);
/// "No emergency exits left until 1 December"
std::string noneLeftTitle(std::string_view until);
/// The last resort; where the guard is installed and the user is no administrator, it takes one who is.
std::string noneLeftDetail(bool guarded, bool admin);

}
