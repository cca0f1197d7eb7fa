#pragma once

#include <string_view>

/// Why the application was started.
namespace orvel::LaunchReason {

/// Among the application's arguments: the guard started it again after it had quit.
inline constexpr std::string_view relaunchArgument = "-orvelRelaunchedAfterQuit";

}
