#include "OrvelCopy/FocusFilter.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::FocusFilter {

// TRANSLATORS: stands for the name of a Block: the Focus of the system that is on
std::string_view name() { return constant(KEY("Your Focus")); }
// TRANSLATORS: the name of the Focus filter in the settings of the system
std::string_view title() { return constant(KEY("Keep Lists quiet")); }
std::string_view description()
{
    // TRANSLATORS: explains the Focus filter in the settings of the system
    return constant(KEY("While this Focus is on, Orvel keeps these Lists quiet. If a Block is also running, the "
                        "stricter one wins. A breath still comes first when you reach for something."));
}
// TRANSLATORS: the label of a choice of Lists
std::string_view lists() { return constant(KEY("Keep these Lists quiet")); }
// TRANSLATORS: the label of a choice between Gentle and Firm
std::string_view mode() { return constant(KEY("How firm")); }
std::string_view gentle() { return constant(KEY("Gentle")); }
std::string_view firm() { return constant(KEY("Firm")); }
// TRANSLATORS: stands for the names of Lists where none is chosen
std::string_view nothingQuiet() { return constant(KEY("No Lists")); }

// TRANSLATORS: stands for a clock time: how long Lists stay quiet
std::string_view untilFocusEnds() { return constant(KEY("until your Focus ends")); }
// TRANSLATORS: stands above the breath that comes before something quiet
std::string_view firmContext() { return constant(KEY("Your Focus is on. A breath can still help.")); }
std::string_view restingDetail()
{
    // TRANSLATORS: "it" is the app or website that is quiet
    return constant(KEY("It wakes up when your Focus ends, or after a breath in the other window."));
}
std::string_view quitRefused()
{
    // TRANSLATORS: Orvel was asked to quit
    return constant(KEY("Your Focus is Firm while it’s on. Orvel has to keep running to block."));
}
std::string_view relaunchBody()
{
    // TRANSLATORS: the text of a notification
    return constant(KEY("Your Focus is Firm while it’s on, so Orvel started itself again after it was quit."));
}

// TRANSLATORS: %1$@ the names of Lists, %2$@ Gentle or Firm
std::string summary(std::string_view lists, std::string_view mode) { return localized(KEY("%@ · %@"), lists, mode); }
// TRANSLATORS: %@ the names of Lists, one or several
std::string quiet(std::string_view lists) { return localized(KEY("%@ quiet"), lists); }
// TRANSLATORS: %@ the names of Lists, one or several
std::string nowDetail(std::string_view lists) { return localized(KEY("%@ quiet · until your Focus ends"), lists); }
// TRANSLATORS: %@ the name of an app or website
std::string blocked(std::string_view name) { return localized(KEY("%@ is quiet while your Focus is on."), name); }
// TRANSLATORS: %@ the name of an app or website
std::string resting(std::string_view name) { return localized(KEY("%@ is resting while your Focus is on."), name); }
std::string sentence(std::string_view name, std::string_view mode, std::string_view lists)
{
    // TRANSLATORS: spoken: %1$@ "Your Focus", %2$@ Gentle or Firm, %3$@ the names of Lists
    return localized(KEY("%@, %@, %@ quiet, until your Focus ends"), name, mode, lists);
}

}
