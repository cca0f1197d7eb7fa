#include "OrvelCopy/Sheets.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Sheets {

// TRANSLATORS: the words on a button
std::string_view cancel() { return constant(KEY("Cancel")); }

// TRANSLATORS: a phase of a breath: breathe in
std::string_view cueIn() { return constant(KEY("In")); }
// TRANSLATORS: a phase of a breath: hold it
std::string_view cueHold() { return constant(KEY("Hold")); }
// TRANSLATORS: a phase of a breath: breathe out
std::string_view cueOut() { return constant(KEY("Out")); }

// TRANSLATORS: the title of the sheet that starts a Focus
std::string_view focusTitle() { return constant(KEY("Focus now")); }
// TRANSLATORS: the label of a choice: minutes of a Focus
std::string_view length() { return constant(KEY("Length")); }
// TRANSLATORS: the label of a choice of Lists
std::string_view keepQuiet() { return constant(KEY("Keep quiet")); }
// TRANSLATORS: the label of a choice between Gentle and Firm
std::string_view howFirm() { return constant(KEY("How firm")); }
// TRANSLATORS: the mildest level of a Focus
std::string_view gentle() { return constant(KEY("Gentle")); }
// TRANSLATORS: the stricter level of a Focus
std::string_view firm() { return constant(KEY("Firm")); }
std::string_view focusGentle()
{
    // TRANSLATORS: what the level Gentle means
    return constant(KEY("After a breath, open an app for a few minutes whenever you need to."));
}
std::string_view focusFirm()
{
    // TRANSLATORS: what the level Firm means
    return constant(KEY("A breath is for calm, never a way in. Ending early takes a 3-minute breath."));
}
// TRANSLATORS: a box to tick
std::string_view arrive() { return constant(KEY("Start with a 1-minute breath")); }
// TRANSLATORS: the words on a button
std::string_view startFocus() { return constant(KEY("Start Focus")); }
// TRANSLATORS: why a Focus cannot start yet
std::string_view pickAList() { return constant(KEY("Pick a List with something in it.")); }

// TRANSLATORS: the title above the breath with which a Focus begins
std::string_view arriveTitle() { return constant(KEY("Arrive")); }
std::string_view arriveDetail()
{
    return constant(KEY("One minute to settle in. Your Focus starts when the breath ends."));
}
// TRANSLATORS: the words on a button: starts the Focus without the breath
std::string_view startNow() { return constant(KEY("Start Now")); }

// TRANSLATORS: the title of the sheet before Ultra Hard mode, the strictest, is turned on
std::string_view safetyTitle() { return constant(KEY("Before you go ultra hard")); }
std::string_view safetyQuit()
{
    // TRANSLATORS: it: Ultra Hard mode
    return constant(KEY("Quit Orvel stays in the menu but is unavailable while it runs."));
}
std::string_view safetyRelaunch()
{
    return constant(KEY("If Orvel is force-quit, it starts again within a few seconds and tells you."));
}
std::string_view safetyDelete()
{
    // TRANSLATORS: it: Ultra Hard mode
    return constant(KEY("Orvel is locked while it runs, and puts itself back if it’s moved to the Bin."));
}
std::string_view safetyDeleteGuarded()
{
    // TRANSLATORS: it: Ultra Hard mode
    return constant(KEY("Orvel can’t be moved to the Bin while it runs, and switching it off in Login Items needs an "
                        "administrator’s password."));
}
std::string_view safetyDeleteGuardedAdmin()
{
    // TRANSLATORS: it: Ultra Hard mode
    return constant(KEY("Orvel can’t be moved to the Bin or renamed while it runs. If it’s switched off in Login "
                        "Items, Orvel notices and says so."));
}
std::string_view safetyNeverBlocked()
{
    return constant(KEY("System Settings, Finder and Orvel itself are never blocked."));
}
// TRANSLATORS: it: Ultra Hard mode
std::string_view safetyLength() { return constant(KEY("It never runs longer than 24 hours at a time.")); }
// TRANSLATORS: a heading above names of apps and websites
std::string_view willBeBlocked() { return constant(KEY("Will be blocked")); }
std::string_view checkYourList()
{
    return constant(KEY("Make sure you’re not blocking anything you might need, like work chat, banking, maps or your "
                        "authenticator app."));
}
// TRANSLATORS: the label of a category of apps
std::string_view games() { return constant(KEY("Games")); }
// TRANSLATORS: a box to tick: the list of what will be blocked
std::string_view checked() { return constant(KEY("I’ve checked my list")); }
// TRANSLATORS: the words on a button
std::string_view turnOnUltraHard() { return constant(KEY("Turn on Ultra Hard mode")); }
// TRANSLATORS: why Ultra Hard mode cannot be turned on yet
std::string_view tickFirst() { return constant(KEY("Tick the box once you’ve checked the list.")); }
// TRANSLATORS: in the place of what will be blocked
std::string_view nothingBlockedYet() { return constant(KEY("Nothing yet: add a List first.")); }

// TRANSLATORS: the words on a button: does not end it
std::string_view keepGoing() { return constant(KEY("Keep going")); }
// TRANSLATORS: what was to be ended is over
std::string_view endedNotice() { return constant(KEY("It has already ended.")); }
// TRANSLATORS: the words on a button
std::string_view close() { return constant(KEY("Close")); }

// TRANSLATORS: the title of the sheet for an emergency exit
std::string_view emergencyTitle() { return constant(KEY("Take one breath first")); }
// TRANSLATORS: the words on a button: ends Ultra Hard mode
std::string_view endIt() { return constant(KEY("End it")); }
std::string_view noneLeftDetail()
{
    return constant(KEY("Ultra Hard mode never runs longer than 24 hours. As a last resort, switch Orvel off in System "
                        "Settings › General › Login Items, then force-quit it."));
}
std::string_view noneLeftDetailGuarded()
{
    return constant(KEY("Ultra Hard mode never runs longer than 24 hours. As a last resort, an administrator can "
                        "switch Orvel off in System Settings › General › Login Items, then force-quit it."));
}
// TRANSLATORS: the words on a button
std::string_view ok() { return constant(KEY("OK")); }

std::string timeLeft(std::string_view time, bool captions)
{
    if (captions)
        // TRANSLATORS: below a breath: %@ a span
        return localized(KEY("%@ left · Captions on"), time);
    // TRANSLATORS: below a breath: %@ a span
    return localized(KEY("%@ left"), time);
}
// TRANSLATORS: %@ a clock time
std::string endsAt(std::string_view time) { return localized(KEY("Ends at %@."), time); }
std::string safetyIntro(std::string_view name)
{
    return localized(
        // TRANSLATORS: %@ the name of a Block
        KEY("Ultra Hard mode makes %@ very hard to get around. Here is exactly what that means on this Mac."), name);
}
std::string safetyNoEnd(std::string_view name)
{
    // TRANSLATORS: %@ the name of a Block
    return localized(KEY("Nothing ends %@ early. Not a breath, not Settings, not Quit. Only an emergency exit, and you "
                         "have 2 a month."),
        name);
}
std::string safetyDelete(bool guarded, bool admin)
{
    if (!guarded)
        return std::string(safetyDelete());
    return std::string(admin ? safetyDeleteGuardedAdmin() : safetyDeleteGuarded());
}
// TRANSLATORS: %@ the names of categories of apps
std::string wholeCategories(std::string_view names) { return localized(KEY("Whole categories: %@"), names); }
// TRANSLATORS: %@ the name of a Block or of a Focus
std::string endingTitle(std::string_view name) { return localized(KEY("Ending %@ early"), name); }
std::string endingDetail(std::string_view name)
{
    return localized(
        // TRANSLATORS: %@ the name of a Block or of a Focus
        KEY("%@ is Firm, so ending it takes a 3-minute breath first. If you still want to end it after, you can."),
        name);
}
// TRANSLATORS: the words on a button: does not end it; %@ the name of a Block or of a Focus
std::string keep(std::string_view name) { return localized(KEY("Keep %@"), name); }
// TRANSLATORS: %@ the name of a Block or of a Focus
std::string stillWant(std::string_view name) { return localized(KEY("Still want to end %@?"), name); }
std::string endingTurnsOff(std::string_view name, std::string_view backAt)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ when it is on again
    return localized(KEY("It’s okay either way. Ending now turns %@ off until %@."), name, backAt);
}
std::string endingFocus(std::string_view name)
{
    // TRANSLATORS: %@ the name of a Focus
    return localized(KEY("It’s okay either way. Ending now ends %@ for good."), name);
}
// TRANSLATORS: the words on a button: %@ the name of a Block or of a Focus
std::string end(std::string_view name) { return localized(KEY("End %@"), name); }
std::string emergencyDetail(std::string_view name)
{
    // TRANSLATORS: goes on after "Take one breath first": %@ the name of a Block
    return localized(KEY("Then you can decide. Leaving the breath before it ends keeps %@ in Ultra Hard mode."), name);
}
// TRANSLATORS: %@ the name of a Block
std::string emergencyQuestion(std::string_view name) { return localized(KEY("End Ultra Hard mode for %@?"), name); }
std::string emergencyUses(std::int64_t left)
{
    if (left == 1)
        return localized(KEY("This uses your last emergency exit this month."));
    // TRANSLATORS: %lld how many are left before this one is used
    return localized(COUNTED("This uses 1 of your %lld emergency exits this month."), left);
}
// TRANSLATORS: %@ when there are emergency exits again
std::string noneLeftTitle(std::string_view until) { return localized(KEY("No emergency exits left until %@"), until); }
std::string noneLeftDetail(bool guarded, bool admin)
{
    return std::string(guarded && !admin ? noneLeftDetailGuarded() : noneLeftDetail());
}

}
