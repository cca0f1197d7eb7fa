#pragma once

#include <string>
#include <string_view>

/// The window that lists every action with its key, by where the key works.
namespace orvel::Copy::KeyboardMap {

std::string_view windowTitle();
std::string_view title();
std::string_view subtitle();

// The headings of the sections.
std::string_view anywhere();
std::string_view mainWindow();
std::string_view textAndWindows();
std::string_view veil();
std::string_view checkIn();
std::string_view breatheWindow();
std::string_view popover();
std::string_view sheets();
std::string_view voiceOver();

// Anywhere.
std::string_view breatheNow();
std::string_view focusNow();
std::string_view openPopover();
/// In the place of a key: the popover opens from the menu bar.
std::string_view clickTheOrb();
std::string_view changeThese();
std::string_view settingsGeneral();
/// In the place of a key, where there is none.
std::string_view none();

// In the main window.
std::string_view views();
std::string_view newBlock();
std::string_view newList();
std::string_view editSelected();
std::string_view duplicate();
std::string_view delete_();
std::string_view findInLists();
std::string_view sidebar();

// Text and windows.
std::string_view biggerText();
std::string_view smallerText();
std::string_view actualSize();
std::string_view settings();
std::string_view mainWindowItem();
std::string_view closeWindow();
std::string_view fullScreen();

// On the veil, the breath that stands before something blocked, and in the check-in after it.
std::string_view length();
std::string_view moveLengths();
std::string_view begin();
std::string_view stayOff();
std::string_view endEarly();
std::string_view pauseBreath();
std::string_view leave();
std::string_view mood();
std::string_view openOptions();
std::string_view openFor();

// In the breath's own window.
std::string_view pauseOrResume();
std::string_view endBreath();
std::string_view shrink();

// In the popover, sheets and alerts.
std::string_view moveRows();
std::string_view activate();
std::string_view close();
std::string_view defaultButton();
std::string_view cancel();
std::string_view nextField();

// VoiceOver.
std::string_view phasesSpoken();
std::string_view breatheInOut();
std::string_view veilAnnounces();
/// In the place of a key: nothing has to be pressed.
std::string_view onArrival();
std::string_view numbersSentence();
std::string_view todayGroup();

// The names of keys.
std::string_view esc();
std::string_view space();

/// "esc or space"
std::string either(std::string_view one, std::string_view other);
/// "Begin, space"
std::string spoken(std::string_view action, std::string_view keys);

}
