#include "OrvelCopy/KeyboardMap.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::KeyboardMap {

std::string_view windowTitle() { return constant(KEY("Keyboard Shortcuts")); }
// TRANSLATORS: a title above the map of keys
std::string_view title() { return constant(KEY("Every action has a key")); }
std::string_view subtitle()
{
    return constant(KEY(
        "Works with and without Full Keyboard Access. The focus ring is always visible while you use the keyboard."));
}

// TRANSLATORS: a heading: the keys that work in every app
std::string_view anywhere() { return constant(KEY("Anywhere on your Mac")); }
// TRANSLATORS: a heading: the keys that work there
std::string_view mainWindow() { return constant(KEY("Main window")); }
// TRANSLATORS: a heading: the keys that work on the size of text and on windows
std::string_view textAndWindows() { return constant(KEY("Text and windows")); }
// TRANSLATORS: a heading: the keys that work on the veil, the breath that stands before something blocked
std::string_view veil() { return constant(KEY("The veil")); }
// TRANSLATORS: a heading: the keys that work in the questions after a breath
std::string_view checkIn() { return constant(KEY("Check-in")); }
// TRANSLATORS: a heading: the keys that work in the window of the breath
std::string_view breatheWindow() { return constant(KEY("Breathe window")); }
// TRANSLATORS: a heading: the keys that work in what opens from the menu bar
std::string_view popover() { return constant(KEY("Menu bar popover")); }
// TRANSLATORS: a heading: the keys that work there
std::string_view sheets() { return constant(KEY("Sheets and alerts")); }
// TRANSLATORS: a heading: what the screen reader VoiceOver says
std::string_view voiceOver() { return constant(KEY("VoiceOver")); }

// TRANSLATORS: an action that has a key
std::string_view breatheNow() { return constant(KEY("Breathe now")); }
// TRANSLATORS: an action that has a key
std::string_view focusNow() { return constant(KEY("Focus now")); }
std::string_view openPopover() { return constant(KEY("Open the popover")); }
// TRANSLATORS: in the place of a key
std::string_view clickTheOrb() { return constant(KEY("click the orb")); }
// TRANSLATORS: these: the keys in the rows above
std::string_view changeThese() { return constant(KEY("Change or clear these")); }
// TRANSLATORS: in the place of a key: the page General of the settings
std::string_view settingsGeneral() { return constant(KEY("Settings › General")); }
// TRANSLATORS: in the place of a key
std::string_view none() { return constant(KEY("none")); }

// TRANSLATORS: the names of the pages
std::string_view views() { return constant(KEY("Today · Blocks · Lists · Breathe · Insights")); }
std::string_view newBlock() { return constant(KEY("New Block")); }
std::string_view newList() { return constant(KEY("New List")); }
std::string_view editSelected() { return constant(KEY("Edit the selected Block or List")); }
// TRANSLATORS: an action that has a key
std::string_view duplicate() { return constant(KEY("Duplicate")); }
// TRANSLATORS: an action that has a key
std::string_view delete_() { return constant(KEY("Delete (when allowed)")); }
std::string_view findInLists() { return constant(KEY("Find in Lists")); }
std::string_view sidebar() { return constant(KEY("Show or hide the sidebar")); }

std::string_view biggerText() { return constant(KEY("Bigger text")); }
std::string_view smallerText() { return constant(KEY("Smaller text")); }
// TRANSLATORS: an action: text in its usual size
std::string_view actualSize() { return constant(KEY("Actual size")); }
// TRANSLATORS: an action: opens the settings
std::string_view settings() { return constant(KEY("Settings")); }
// TRANSLATORS: an action: opens the main window
std::string_view mainWindowItem() { return constant(KEY("Orvel’s main window")); }
std::string_view closeWindow() { return constant(KEY("Close window")); }
// TRANSLATORS: an action that has a key
std::string_view fullScreen() { return constant(KEY("Full screen")); }

// TRANSLATORS: an action: the length of the breath
std::string_view length() { return constant(KEY("Length: 1, 3 or 5 min")); }
std::string_view moveLengths() { return constant(KEY("Move between lengths")); }
// TRANSLATORS: an action: begins the breath
std::string_view begin() { return constant(KEY("Begin")); }
// TRANSLATORS: an action: leaves what is blocked alone
std::string_view stayOff() { return constant(KEY("Stay off")); }
std::string_view endEarly() { return constant(KEY("End the breath early")); }
std::string_view pauseBreath() { return constant(KEY("Pause or resume the breath")); }
// TRANSLATORS: an action that has a key
std::string_view leave() { return constant(KEY("Leave for another app, any time")); }
// TRANSLATORS: an action: says how one feels after the breath
std::string_view mood() { return constant(KEY("Mood (optional)")); }
// TRANSLATORS: an action: goes to the choices that open what is blocked; Gentle is a level of Blocks
std::string_view openOptions() { return constant(KEY("To the open options (Gentle)")); }
// TRANSLATORS: an action: opens what is blocked for so long
std::string_view openFor() { return constant(KEY("Open for 5, 10 or 15 min")); }

std::string_view pauseOrResume() { return constant(KEY("Pause or resume")); }
std::string_view endBreath() { return constant(KEY("End the breath")); }
// TRANSLATORS: an action: makes the window of the breath small
std::string_view shrink() { return constant(KEY("Shrink to the floating orb")); }

std::string_view moveRows() { return constant(KEY("Move through rows")); }
// TRANSLATORS: an action: does what the row says
std::string_view activate() { return constant(KEY("Activate")); }
// TRANSLATORS: an action: closes the popover
std::string_view close() { return constant(KEY("Close")); }
// TRANSLATORS: an action: presses the button that stands out
std::string_view defaultButton() { return constant(KEY("Default button")); }
// TRANSLATORS: an action: closes a sheet
std::string_view cancel() { return constant(KEY("Cancel")); }
// TRANSLATORS: an action: goes to the next field of a sheet
std::string_view nextField() { return constant(KEY("Next field")); }

// TRANSLATORS: the phases of a breath, such as breathing in
std::string_view phasesSpoken() { return constant(KEY("Phases are spoken")); }
// TRANSLATORS: how the phases of a breath are spoken
std::string_view breatheInOut() { return constant(KEY("Breathe in · out")); }
// TRANSLATORS: the veil is the breath that stands before something blocked
std::string_view veilAnnounces() { return constant(KEY("The veil announces itself")); }
// TRANSLATORS: when the veil announces itself
std::string_view onArrival() { return constant(KEY("on arrival")); }
// TRANSLATORS: how today’s numbers are spoken
std::string_view numbersSentence() { return constant(KEY("Numbers read as one sentence")); }
// TRANSLATORS: where numbers are spoken as a sentence: the group of today’s numbers
std::string_view todayGroup() { return constant(KEY("Today group")); }

// TRANSLATORS: the name of a key
std::string_view esc() { return constant(KEY("esc")); }
// TRANSLATORS: the name of a key
std::string_view space() { return constant(KEY("space")); }

// TRANSLATORS: %1$@ and %2$@ are keys
std::string either(std::string_view one, std::string_view other) { return localized(KEY("%@ or %@"), one, other); }
// TRANSLATORS: spoken: %1$@ an action, %2$@ its keys
std::string spoken(std::string_view action, std::string_view keys) { return localized(KEY("%@, %@"), action, keys); }

}
