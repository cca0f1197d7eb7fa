#pragma once

#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Controls/ControlRequests.h"

namespace orvel {

/// Requests to the extension on the bus, and to the application where it runs.
class BusControlRequests : public ControlRequests {
public:
    /// The requester outlives every request.
    explicit BusControlRequests(WidgetRequester& requester) : m_requester(requester) { }

    Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment) override
    {
        return m_requester.members(std::move(environment));
    }
    Task<Answer<ControlValue>> controlValue(std::string kind, HostEnvironment environment) override
    {
        return m_requester.controlValue(std::move(kind), std::move(environment));
    }
    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override
    {
        return m_requester.perform(std::move(intent), std::move(parameters), std::move(platform));
    }

private:
    WidgetRequester& m_requester;
};

}
