#include "OrvelCopy/Shortcuts.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Shortcuts {

// TRANSLATORS: answer to a shortcut that asks for a Block which was deleted
std::string_view noSuchBlock() { return constant(KEY("That Block isn’t in Orvel any more.")); }
// TRANSLATORS: answer to a shortcut that starts a Focus without anything to keep quiet
std::string_view nothingToFocusOn() { return constant(KEY("Pick at least one List with something in it.")); }
// TRANSLATORS: answer to a shortcut that ended the Focus
std::string_view focusEnded() { return constant(KEY("Focus ended. That’s okay.")); }
// TRANSLATORS: answer to a shortcut that ends the Focus
std::string_view noFocus() { return constant(KEY("No Focus is running.")); }
// TRANSLATORS: answer to the question whether a Block is running
std::string_view somethingRunning() { return constant(KEY("Yes. A Block is running.")); }
// TRANSLATORS: answer to the question whether a Block is running
std::string_view nothingRunning() { return constant(KEY("No. No Block is running now.")); }
// TRANSLATORS: answer to a shortcut that begins a breath
std::string_view breathing() { return constant(KEY("A breath is ready in Orvel.")); }
// TRANSLATORS: answer to a shortcut while Orvel is still starting
std::string_view notReady() { return constant(KEY("Orvel isn’t ready yet. Try again in a moment.")); }

std::string firmRefusal(std::string_view name, std::string_view until, Surface from)
{
    if (from == Surface::controlCenter)
        // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
        return localized(KEY("%@ is Firm until %@, so Control Center can’t turn it off. Ending early takes a 3-minute "
                             "breath in Orvel."),
            name, until);
    return localized(
        // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
        KEY("%@ is Firm until %@, so a shortcut can’t turn it off. Ending early takes a 3-minute breath in Orvel."),
        name, until);
}
std::string ultraHardRefusal(std::string_view name, std::string_view until, Surface from)
{
    if (from == Surface::controlCenter)
        return localized(
            // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
            KEY("%@ is in Ultra Hard mode until %@, so Control Center can’t turn it off. Nothing ends it early."), name,
            until);
    return localized(
        // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
        KEY("%@ is in Ultra Hard mode until %@, so a shortcut can’t turn it off. Nothing ends it early."), name, until);
}
std::string firmBlockOff(std::string_view name)
{
    // TRANSLATORS: %@ the name of a Block
    return localized(KEY("%@ is Firm, so a shortcut can’t turn it off. You can turn it off in Orvel."), name);
}
std::string ultraHardBlockOff(std::string_view name)
{
    // TRANSLATORS: %@ the name of a Block
    return localized(KEY("%@ is in Ultra Hard mode, so a shortcut can’t turn it off. You can turn Ultra Hard mode off "
                         "in Orvel, outside its hours."),
        name);
}
// TRANSLATORS: %@ the name of a Block; it has been switched on
std::string blockOn(std::string_view name) { return localized(KEY("%@ is on."), name); }
// TRANSLATORS: %@ the name of a Block; it has been switched off
std::string blockOff(std::string_view name) { return localized(KEY("%@ is off."), name); }
std::string blockAlready(std::string_view name, bool on)
{
    if (on)
        // TRANSLATORS: %@ the name of a Block
        return localized(KEY("%@ was already on."), name);
    // TRANSLATORS: %@ the name of a Block
    return localized(KEY("%@ was already off."), name);
}
std::string focusStarted(std::int64_t minutes, std::string_view until)
{
    // TRANSLATORS: %2$@ a clock time
    return localized(COUNTED("Focus started: %lld minutes, until %@."), minutes, until);
}
std::string focusAlreadyRunning(std::string_view until)
{
    // TRANSLATORS: %@ a clock time
    return localized(KEY("A Focus is already running until %@."), until);
}
std::string running(std::string_view name, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("Yes. %@ is running until %@."), name, until);
}
// TRANSLATORS: %@ the name of a Block
std::string notRunning(std::string_view name) { return localized(KEY("No. %@ isn’t running now."), name); }
std::string todaysNumbers(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff)
{
    // TRANSLATORS: answer to a shortcut: the numbers of today
    return localized(KEY("%lld breaths, %lld minutes breathed, stayed off %lld times."), breaths, minutes, stayedOff);
}

}
