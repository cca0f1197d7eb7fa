#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The notifications that the application posts.
namespace orvel::Copy::Notifications {

std::string_view oneMinuteTitle();
std::string_view relaunchTitle();
std::string_view switchedOffTitle();
std::string_view focusDoneTitle();
std::string_view recapTitle();
std::string_view breakTitle();
std::string_view breakBody();

/// "Mail closes at 12:00. Finish your thought."
std::string oneMinuteBody(std::string_view name, std::string_view closesAt);
/// "Deep work is Firm until 12:00, so Orvel started itself again …", or that it is in Ultra Hard mode
std::string relaunchBody(std::string_view name, bool ultraHard, std::string_view until);
/// "Deep work stays in Ultra Hard mode while Orvel runs. …"
std::string switchedOffBody(std::string_view name);
/// "25 minutes, start to finish. Social and Chat are open again."; without Lists the first sentence alone
std::string focusDoneBody(std::int64_t minutes, std::optional<std::string_view> lists);
/// "2 breaths, 6 minutes breathed, and you stayed off 3 times."
std::string recapBody(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff);
/// "Websites aren’t blocked in Firefox yet"
std::string uncoveredTitle(std::string_view browser);
/// "Deep work covers your apps and Safari. Orvel can’t see Firefox’s tabs."
std::string uncoveredBody(std::string_view covering, std::string_view browser);
/// "Orvel can’t see Firefox’s tabs"
std::string fixTitle(std::string_view browser);
/// "Websites in Firefox aren’t blocked until you allow it. …"
std::string fixBody(std::string_view browser);

}
