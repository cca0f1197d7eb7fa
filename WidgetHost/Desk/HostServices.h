#pragma once

#include <expected>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"
#include "WidgetHost/Schedule/WidgetRequests.h"

namespace orvel {

/// All that a desk asks of others: the extension, the application, and whoever opens links. Every request comes to an
/// end, and one whose task is destroyed is forgotten.
class HostServices : public WidgetRequests {
public:
    virtual Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment) = 0;
    virtual Task<Answer<ExtensionEntry>> snapshot(std::string kind, HostEnvironment environment) = 0;
    virtual Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) = 0;
    virtual Task<std::expected<void, Fault>> opened(std::string url, std::optional<std::string> activationToken) = 0;
};

}
