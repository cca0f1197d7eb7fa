#pragma once

#include <string>
#include <vector>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// What the controls ask of an extension. Every request comes to an end, and one whose task is destroyed is forgotten.
/// Nothing here calls the controls back.
class ControlRequests {
public:
    ControlRequests() = default;
    ControlRequests(const ControlRequests&) = delete;
    ControlRequests& operator=(const ControlRequests&) = delete;
    virtual ~ControlRequests() = default;

    virtual Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment) = 0;
    virtual Task<Answer<ControlValue>> controlValue(std::string kind, HostEnvironment environment) = 0;

    /// Runs an intent wherever it is run best.
    virtual Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) = 0;
};

}
