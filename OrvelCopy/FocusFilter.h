#pragma once

#include <string>
#include <string_view>

/// The system's Focus filter, which keeps Lists quiet while a Focus of the system is on: its settings and what it
/// brings about. It is Gentle or Firm, never Ultra Hard.
namespace orvel::Copy::FocusFilter {

// The settings.
/// "Your Focus", the name of what runs
std::string_view name();
std::string_view title();
std::string_view description();
std::string_view lists();
std::string_view mode();
std::string_view gentle();
std::string_view firm();
std::string_view nothingQuiet();

// What it brings about.
std::string_view untilFocusEnds();
std::string_view firmContext();
std::string_view restingDetail();
std::string_view quitRefused();
std::string_view relaunchBody();

/// "Social and Chat · Firm"
std::string summary(std::string_view lists, std::string_view mode);
/// "Social and Chat quiet"
std::string quiet(std::string_view lists);
/// "Social and Chat quiet · until your Focus ends"
std::string nowDetail(std::string_view lists);
/// "Mail is quiet while your Focus is on."
std::string blocked(std::string_view name);
/// "Mail is resting while your Focus is on."
std::string resting(std::string_view name);
/// "Your Focus, Firm, Social and Chat quiet, until your Focus ends"
std::string sentence(std::string_view name, std::string_view mode, std::string_view lists);

}
