#include "OrvelCopy/Menus.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Menus {

std::string_view orvel() { return "Orvel"; }
std::string_view about() { return constant(KEY("About Orvel")); }
std::string_view settings() { return constant(KEY("Settings…")); }
std::string_view checkForUpdates() { return constant(KEY("Check for Updates…")); }
// TRANSLATORS: a menu item: opens the system's menu of services
std::string_view services() { return constant(KEY("Services")); }
std::string_view hide() { return constant(KEY("Hide Orvel")); }
// TRANSLATORS: a menu item: hides all other apps
std::string_view hideOthers() { return constant(KEY("Hide Others")); }
// TRANSLATORS: a menu item: shows all apps again
std::string_view showAll() { return constant(KEY("Show All")); }
std::string_view quit() { return constant(KEY("Quit Orvel")); }

// TRANSLATORS: the title of a menu
std::string_view file() { return constant(KEY("File")); }
// TRANSLATORS: the title of a menu
std::string_view edit() { return constant(KEY("Edit")); }
// TRANSLATORS: the title of a menu
std::string_view view() { return constant(KEY("View")); }
// TRANSLATORS: the title of a menu
std::string_view breathe() { return constant(KEY("Breathe")); }
// TRANSLATORS: the title of a menu
std::string_view window() { return constant(KEY("Window")); }
// TRANSLATORS: the title of a menu
std::string_view help() { return constant(KEY("Help")); }

std::string_view newBlock() { return constant(KEY("New Block")); }
std::string_view newList() { return constant(KEY("New List")); }
std::string_view editBlock() { return constant(KEY("Edit Block…")); }
std::string_view editList() { return constant(KEY("Edit List…")); }
// TRANSLATORS: a menu item: makes a copy of a Block or a List
std::string_view duplicate() { return constant(KEY("Duplicate")); }
std::string_view closeWindow() { return constant(KEY("Close Window")); }

std::string_view undo() { return constant(KEY("Undo")); }
std::string_view redo() { return constant(KEY("Redo")); }
std::string_view cut() { return constant(KEY("Cut")); }
// TRANSLATORS: a menu item: copies to the clipboard
std::string_view copy() { return constant(KEY("Copy")); }
std::string_view paste() { return constant(KEY("Paste")); }
// TRANSLATORS: a menu item: deletes a Block or a List
std::string_view delete_() { return constant(KEY("Delete…")); }
std::string_view selectAll() { return constant(KEY("Select All")); }
// TRANSLATORS: a menu item: goes to the search field
std::string_view find() { return constant(KEY("Find")); }

// TRANSLATORS: a menu item: shows the page of this name
std::string_view today() { return constant(KEY("Today")); }
// TRANSLATORS: a menu item: shows the page of this name
std::string_view blocks() { return constant(KEY("Blocks")); }
// TRANSLATORS: a menu item: shows the page of this name
std::string_view lists() { return constant(KEY("Lists")); }
// TRANSLATORS: a menu item: shows the page of this name
std::string_view breatheView() { return constant(KEY("Breathe")); }
// TRANSLATORS: a menu item: shows the page of this name
std::string_view insights() { return constant(KEY("Insights")); }
std::string_view hideSidebar() { return constant(KEY("Hide Sidebar")); }
std::string_view biggerText() { return constant(KEY("Bigger Text")); }
std::string_view smallerText() { return constant(KEY("Smaller Text")); }
// TRANSLATORS: a menu item: text in its usual size
std::string_view actualSize() { return constant(KEY("Actual Size")); }
std::string_view enterFullScreen() { return constant(KEY("Enter Full Screen")); }

// TRANSLATORS: a menu item: begins a breath
std::string_view breatheNow() { return constant(KEY("Breathe Now")); }
// TRANSLATORS: a menu item: a style of breath
std::string_view calm() { return constant(KEY("Calm")); }
// TRANSLATORS: a menu item: a style of breath
std::string_view reset() { return constant(KEY("Reset")); }
// TRANSLATORS: a menu item: a style of breath
std::string_view ground() { return constant(KEY("Ground")); }
// TRANSLATORS: a menu item: opens the sheet that starts a Focus
std::string_view focusNow() { return constant(KEY("Focus Now…")); }
// TRANSLATORS: a menu item: ends what is running before its time
std::string_view endEarly() { return constant(KEY("End Early…")); }
// TRANSLATORS: why the menu item "End Early…" is unavailable
std::string_view endEarlyOnlyWhileFirm() { return constant(KEY("Only while something Firm is running.")); }
// TRANSLATORS: a menu item: the orb is the small breathing circle
std::string_view showFloatingOrb() { return constant(KEY("Show Floating Orb")); }

std::string_view minimize() { return constant(KEY("Minimize")); }
// TRANSLATORS: a menu item: makes the window as large as its content
std::string_view zoom() { return constant(KEY("Zoom")); }
std::string_view mainWindow() { return "Orvel"; }
// TRANSLATORS: a menu item: brings the window of this name to the front
std::string_view breatheWindow() { return constant(KEY("Breathe")); }
std::string_view bringAllToFront() { return constant(KEY("Bring All to Front")); }

std::string_view orvelHelp() { return constant(KEY("Orvel Help")); }
// TRANSLATORS: a menu item: opens the page about how Orvel differs on a Mac
std::string_view differences() { return constant(KEY("What’s Different on a Mac")); }
std::string_view keyboardShortcuts() { return constant(KEY("Keyboard Shortcuts")); }
std::string_view sendFeedback() { return constant(KEY("Send Feedback…")); }

// TRANSLATORS: a length to choose
std::string minutes(std::int64_t minutes) { return localized(COUNTED("%lld min"), minutes); }

}
