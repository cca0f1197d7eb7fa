#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The menus of the menu bar and their items.
namespace orvel::Copy::Menus {

// The application's own menu.
/// The name itself, which no language changes; so is `mainWindow`.
std::string_view orvel();
std::string_view about();
std::string_view settings();
std::string_view checkForUpdates();
std::string_view services();
std::string_view hide();
std::string_view hideOthers();
std::string_view showAll();
std::string_view quit();

// The titles of the menus.
std::string_view file();
std::string_view edit();
std::string_view view();
std::string_view breathe();
std::string_view window();
std::string_view help();

// File.
std::string_view newBlock();
std::string_view newList();
std::string_view editBlock();
std::string_view editList();
std::string_view duplicate();
std::string_view closeWindow();

// Edit.
std::string_view undo();
std::string_view redo();
std::string_view cut();
std::string_view copy();
std::string_view paste();
std::string_view delete_();
std::string_view selectAll();
std::string_view find();

// View.
std::string_view today();
std::string_view blocks();
std::string_view lists();
std::string_view breatheView();
std::string_view insights();
std::string_view hideSidebar();
std::string_view biggerText();
std::string_view smallerText();
std::string_view actualSize();
std::string_view enterFullScreen();

// Breathe.
std::string_view breatheNow();
std::string_view calm();
std::string_view reset();
std::string_view ground();
std::string_view focusNow();
std::string_view endEarly();
/// Why `endEarly` is unavailable.
std::string_view endEarlyOnlyWhileFirm();
std::string_view showFloatingOrb();

// Window.
std::string_view minimize();
std::string_view zoom();
std::string_view mainWindow();
std::string_view breatheWindow();
std::string_view bringAllToFront();

// Help.
std::string_view orvelHelp();
std::string_view differences();
std::string_view keyboardShortcuts();
std::string_view sendFeedback();

/// "3 min", a length
std::string minutes(std::int64_t minutes);

}
