#include "OrvelCopy/TabPage.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::TabPage {

// TRANSLATORS: the title of the page
std::string_view pageTitle() { return constant(KEY("Breathe first · Orvel")); }
// TRANSLATORS: before a blocked website opens
std::string_view breatheFirst() { return constant(KEY("Breathe first")); }
// TRANSLATORS: the words on a button: closes the page
std::string_view notRightNow() { return constant(KEY("Not right now")); }
// TRANSLATORS: the words on a button: begins a breath
std::string_view begin() { return constant(KEY("Begin")); }
// TRANSLATORS: the words on a button: the website stays closed
std::string_view stayOff() { return constant(KEY("Stay off")); }
// TRANSLATORS: the question after a breath
std::string_view question() { return constant(KEY("How do you feel?")); }

// TRANSLATORS: during a breath: breathe in
std::string_view cueIn() { return constant(KEY("In")); }
// TRANSLATORS: during a breath: hold it
std::string_view cueHold() { return constant(KEY("Hold")); }
// TRANSLATORS: during a breath: breathe out
std::string_view cueOut() { return constant(KEY("Out")); }
// TRANSLATORS: during a breath
std::string_view status() { return constant(KEY("Captions on · Sound off · esc ends the breath")); }

// TRANSLATORS: the name of the length of 1 minute
std::string_view reset() { return constant(KEY("Reset")); }
// TRANSLATORS: the name of the length of 3 minutes
std::string_view settle() { return constant(KEY("Settle")); }
// TRANSLATORS: the name of the length of 5 minutes
std::string_view deep() { return constant(KEY("Deep")); }

// TRANSLATORS: an answer to "How do you feel?"
std::string_view calmer() { return constant(KEY("Calmer")); }
// TRANSLATORS: an answer to "How do you feel?"
std::string_view same() { return constant(KEY("Same")); }
// TRANSLATORS: an answer to "How do you feel?"
std::string_view restless() { return constant(KEY("Restless")); }

std::string spokenLength(std::int64_t minutes, std::string_view name)
{
    // TRANSLATORS: spoken: %2$@ the name of a length
    return localized(COUNTED("%lld minute, %@"), minutes, name);
}
std::string endsAt(std::string_view name, std::string_view time)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ ends at %@."), name, time);
}
// TRANSLATORS: %@ the name of an app or website
std::string opening(std::string_view name) { return localized(KEY("Opening %@…"), name); }

}
