#include "OrvelCopy/Window.h"

#include "OrvelCopy/Copy.h"
#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Window {

// TRANSLATORS: a section of the window
std::string_view today() { return constant(KEY("Today")); }
// TRANSLATORS: a section of the window
std::string_view blocks() { return constant(KEY("Blocks")); }
// TRANSLATORS: a section of the window
std::string_view lists() { return constant(KEY("Lists")); }
// TRANSLATORS: a section of the window
std::string_view breathe() { return constant(KEY("Breathe")); }
// TRANSLATORS: a section of the window
std::string_view insights() { return constant(KEY("Insights")); }
// TRANSLATORS: spoken: the list of the sections
std::string_view sidebar() { return constant(KEY("Sidebar")); }

// TRANSLATORS: a button: starts a Focus
std::string_view focusNow() { return constant(KEY("Focus now…")); }
// TRANSLATORS: why a button that starts a Focus does nothing
std::string_view focusRunning() { return constant(KEY("A Focus is already running.")); }
// TRANSLATORS: a button
std::string_view newBlock() { return constant(KEY("New Block")); }
// TRANSLATORS: a button
std::string_view newList() { return constant(KEY("New List")); }
// TRANSLATORS: a field
std::string_view search() { return constant(KEY("Search")); }
// TRANSLATORS: a field
std::string_view searchLists() { return constant(KEY("Search Lists")); }
// TRANSLATORS: the label of a choice: the style of a breath
std::string_view style() { return constant(KEY("Style")); }
// TRANSLATORS: the label of a choice: a week or 30 days
std::string_view range() { return constant(KEY("Range")); }
// TRANSLATORS: a choice: 7 days
std::string_view week() { return constant(KEY("Week")); }
// TRANSLATORS: a choice
std::string_view thirtyDays() { return constant(KEY("30 days")); }

std::string_view blockLimit()
{
    return constant(KEY("You have 8 Blocks, the most Orvel keeps. Delete one to make another."));
}
std::string_view listLimit()
{
    return constant(KEY("You have 20 Lists, the most Orvel keeps. Delete one to make another."));
}

// TRANSLATORS: the words on a button: puts a problem right
std::string_view fix() { return constant(KEY("Fix")); }
// TRANSLATORS: a problem: Orvel cannot follow windows
std::string_view fixAccessibility() { return constant(KEY("Can’t follow windows")); }
// TRANSLATORS: a problem: Orvel does not open at login
std::string_view fixLogin() { return constant(KEY("Won’t open at login")); }
// TRANSLATORS: a problem: Orvel was switched off; "Login Items" as in the settings of the system
std::string_view fixSwitchedOff() { return constant(KEY("Switched off in Login Items")); }
// TRANSLATORS: a problem
std::string_view fixFailure() { return constant(KEY("Blocking couldn’t start")); }

std::string_view phoneTitle() { return constant(KEY("Orvel for your phone")); }
std::string_view phoneLine() { return constant(KEY("The same breath, in your pocket.")); }
// TRANSLATORS: %@ the address of a website
std::string_view phoneLink() { return constant(KEY("Get it at %@"), webAddress); }
// TRANSLATORS: %@ the address of a website
std::string_view phoneHint() { return constant(KEY("Opens %@ in your browser."), webAddress); }

// TRANSLATORS: a problem: %@ the name of a browser
std::string fixBrowser(std::string_view browser) { return localized(KEY("%@ needs permission"), browser); }
// TRANSLATORS: a problem
std::string fixBrowsers(std::int64_t count) { return localized(COUNTED("%lld browsers need permission"), count); }

}
