#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Short confirmations, shown for a moment.
namespace orvel::Copy::Toasts {

/// "Deep work ended. That’s okay."
std::string endedEarly(std::string_view name);
/// "Deep work ended. That’s okay. It’ll be back 12:00."; without a time as `endedEarly`
std::string emergencyExit(std::string_view name, std::optional<std::string_view> backAt);
/// "Deep work updated. Active until 12:00."; without a time "Deep work updated."
std::string blockUpdated(std::string_view name, std::optional<std::string_view> until);
/// "Nice. That’s 3 today."
std::string stayedOff(std::int64_t count);

}
