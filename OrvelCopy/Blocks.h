#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Blocks: their levels, rows and summaries.
namespace orvel::Copy::Blocks {

std::string_view gentle();
std::string_view firm();
/// "Firm · Ultra Hard"
std::string_view firmUltraHard();

/// "Running · until 12:00"
std::string running(std::string_view until);
/// "1 app", "2 apps"
std::string apps(std::int64_t count);
/// "Blocks 2 apps and 1 website."; with ready-made Lists also "Ready-made Lists add new apps you install."
std::string blocksSummary(std::int64_t apps, std::int64_t websites, bool readyMade);
/// Days, hours and Lists: "Mon–Fri · 09:00 – 12:00 · Social"
std::string scheduleWithLists(std::string_view days, std::string_view hours, std::string_view lists);
/// "Deep work, Firm, weekdays", and ", off" where the Block is switched off
std::string rowSentence(std::string_view name, std::string_view mode, std::string_view schedule, bool isOn);

}
