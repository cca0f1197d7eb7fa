#include "OrvelCopy/Guard.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Guard {

// TRANSLATORS: the title of a card that offers to set up the helper
std::string_view cardTitle() { return constant(KEY("One more door to close")); }
// TRANSLATORS: the words on a button
std::string_view setItUp() { return constant(KEY("Set it up…")); }

std::string_view explainTitle() { return constant(KEY("Let Orvel guard itself")); }
std::string_view explainPassword()
{
    return constant(KEY("Switching Orvel off in Login Items will need an administrator’s password."));
}
std::string_view explainStillSwitchable()
{
    return constant(KEY("You can still switch Orvel off in Login Items. If you do, Orvel notices and says so."));
}
std::string_view explainRelaunch()
{
    return constant(
        KEY("While Ultra Hard mode runs, Orvel opens again if it’s force-quit, even after you log out or restart."));
}
std::string_view explainBin()
{
    return constant(KEY("Orvel can’t be moved to the Bin or renamed until Ultra Hard mode ends."));
}
std::string_view explainNothingElse()
{
    return constant(
        // TRANSLATORS: "lets go": stops guarding
        KEY("The helper does nothing else, and lets go when Ultra Hard mode ends, after 24 hours at most."));
}
std::string_view explainNext()
{
    // TRANSLATORS: "Allow in the Background" as in the settings of the system
    return constant(KEY("System Settings opens next. Switch Orvel on under Allow in the Background, and macOS asks for "
                        "an administrator’s password or Touch ID."));
}
// TRANSLATORS: the words on a button
std::string_view notNow() { return constant(KEY("Not Now")); }
// TRANSLATORS: the words on a button
std::string_view continueSetup() { return constant(KEY("Continue")); }

// TRANSLATORS: "Login Items" as in the settings of the system
std::string_view waitingTitle() { return constant(KEY("Switch Orvel on in Login Items")); }
std::string_view waitingDetail()
{
    // TRANSLATORS: the path and "Allow in the Background" as in the settings of the system
    return constant(KEY("In System Settings › General › Login Items, under Allow in the Background, switch Orvel on. "
                        "macOS asks for an administrator’s password or Touch ID."));
}
std::string_view waitingStatus() { return constant(KEY("Waiting for Orvel to be switched on…")); }
// TRANSLATORS: the words on a button; "Login Items" as in the settings of the system
std::string_view openLoginItems() { return constant(KEY("Open Login Items")); }
std::string_view notAdmin()
{
    return constant(KEY("This needs an administrator’s name and password. You can skip it: Ultra Hard mode still locks "
                        "Orvel while it runs."));
}

// TRANSLATORS: the helper is set up
std::string_view doneTitle() { return constant(KEY("Orvel guards itself")); }
// TRANSLATORS: the words on a button
std::string_view done() { return constant(KEY("Done")); }
std::string_view failedTitle() { return constant(KEY("Orvel couldn’t set up its helper")); }
std::string_view failedDetail()
{
    // TRANSLATORS: the path as in the settings of Orvel
    return constant(KEY("Ultra Hard mode still locks Orvel while it runs. You can try again in Settings › Blocking."));
}

// TRANSLATORS: the title of a row in the settings
std::string_view row() { return constant(KEY("Orvel guards itself")); }
std::string_view rowOnWhileRunning()
{
    // TRANSLATORS: "it" is that Orvel guards itself
    return constant(KEY("On while Ultra Hard mode runs. You can turn it off once it ends."));
}
std::string_view rowWaiting() { return constant(KEY("Waiting for approval in Login Items")); }
std::string_view rowSwitchedOff() { return constant(KEY("Switched off in Login Items")); }

std::string cardBody(bool admin)
{
    if (admin)
        return localized(KEY("Let Orvel guard itself, so it can’t be moved to the Bin and comes back if it’s closed."));
    return localized(
        KEY("Let Orvel guard itself, so switching it off in Login Items needs an administrator’s password."));
}
std::string explainIntro(bool admin)
{
    if (admin)
        return localized(KEY("Right now, Orvel can be unlocked in Get Info and moved to the Bin during Ultra Hard "
                             "mode. A small helper closes that door."));
    return localized(KEY("Right now, switching Orvel off in Login Items and then force-quitting it ends Ultra Hard "
                         "mode. A small helper closes that door."));
}
std::string doneDetail(bool admin)
{
    if (admin)
        return localized(KEY("While Ultra Hard mode runs, Orvel can’t be moved to the Bin or renamed, and it opens "
                             "again if it’s force-quit, even after a restart."));
    return localized(KEY("While Ultra Hard mode runs, switching Orvel off needs an administrator’s password, and Orvel "
                         "opens again if it’s force-quit."));
}
std::string doneLimit(bool admin)
{
    if (admin)
        return localized(KEY("Very hard to bypass, never impossible: you can still switch Orvel off in Login Items, "
                             "and Orvel will notice and say so."));
    return localized(KEY("Very hard to bypass, never impossible: an administrator can still undo it in Terminal."));
}
std::string rowOn(bool admin)
{
    if (admin)
        return localized(KEY("Orvel can’t be moved to the Bin, and opens again if it’s closed."));
    return localized(KEY("Switching Orvel off in Login Items needs an administrator’s password."));
}
std::string rowOff(bool admin)
{
    if (admin)
        return localized(KEY("Optional: Orvel couldn’t be moved to the Bin, and would open again if it’s closed."));
    return localized(KEY("Optional: switching Orvel off in Login Items would need an administrator’s password."));
}

}
