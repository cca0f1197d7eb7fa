#pragma once

#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "WidgetHost/Program/HostCall.h"
#include "WidgetHost/State/HostState.h"

namespace orvel {

/// The placed widgets and what can be added, for a terminal. Members are absent where the extension did not answer.
std::string hostListing(const HostState& state, const std::optional<std::vector<ExtensionMember>>& members);

/// Why a widget cannot be added; absent where it can.
std::optional<std::string> whyNotAdded(const HostCall::Add& call, const std::vector<ExtensionMember>& members);

}
