#pragma once

#include <string>
#include <string_view>

/// How Orvel guards itself while Ultra Hard mode runs: the set-up of its helper, and the row in the settings.
namespace orvel::Copy::Guard {

// The card that offers it.
std::string_view cardTitle();
std::string_view setItUp();

// What the helper does, before it is set up.
std::string_view explainTitle();
std::string_view explainPassword();
std::string_view explainStillSwitchable();
std::string_view explainRelaunch();
std::string_view explainBin();
std::string_view explainNothingElse();
std::string_view explainNext();
std::string_view notNow();
std::string_view continueSetup();

// Until it is switched on in Login Items.
std::string_view waitingTitle();
std::string_view waitingDetail();
std::string_view waitingStatus();
std::string_view openLoginItems();
std::string_view notAdmin();

// How it went.
std::string_view doneTitle();
std::string_view done();
std::string_view failedTitle();
std::string_view failedDetail();

// The row in the settings.
std::string_view row();
std::string_view rowOnWhileRunning();
std::string_view rowWaiting();
std::string_view rowSwitchedOff();

// Each differs by whether the user is an administrator (`admin`): one is told of the Bin and of opening again, anyone
// else of the administrator's password.
/// "Let Orvel guard itself, so …"
std::string cardBody(bool admin);
/// "Right now, … A small helper closes that door."
std::string explainIntro(bool admin);
/// "While Ultra Hard mode runs, …"
std::string doneDetail(bool admin);
/// "Very hard to bypass, never impossible: …"
std::string doneLimit(bool admin);
/// What the guard does while it is set up
std::string rowOn(bool admin);
/// "Optional: …", what the guard would do
std::string rowOff(bool admin);

}
