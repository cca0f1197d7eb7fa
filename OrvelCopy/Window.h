#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The main window: its sections, its toolbar, what needs to be put right, and Orvel for the phone.
namespace orvel::Copy::Window {

// The sections.
std::string_view today();
std::string_view blocks();
std::string_view lists();
std::string_view breathe();
std::string_view insights();
std::string_view sidebar();

// The toolbar.
std::string_view focusNow();
std::string_view focusRunning();
std::string_view newBlock();
std::string_view newList();
std::string_view search();
std::string_view searchLists();
std::string_view style();
std::string_view range();
std::string_view week();
std::string_view thirtyDays();

// Where there is no room for more.
std::string_view blockLimit();
std::string_view listLimit();

// What needs to be put right.
std::string_view fix();
std::string_view fixAccessibility();
std::string_view fixLogin();
std::string_view fixSwitchedOff();
std::string_view fixFailure();

// Orvel for the phone.
std::string_view phoneTitle();
std::string_view phoneLine();
/// "Get it at orvel.app"
std::string_view phoneLink();
/// "Opens orvel.app in your browser."
std::string_view phoneHint();

/// "Firefox needs permission"
std::string fixBrowser(std::string_view browser);
/// "2 browsers need permission"
std::string fixBrowsers(std::int64_t count);

}
