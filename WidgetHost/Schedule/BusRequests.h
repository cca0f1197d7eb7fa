#pragma once

#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Schedule/WidgetRequests.h"

namespace orvel {

/// Requests to the extension on the bus.
class BusRequests : public WidgetRequests {
public:
    /// The requester outlives every request.
    explicit BusRequests(WidgetRequester& requester) : m_requester(requester) { }

    Task<Answer<ExtensionTimeline>> timeline(std::string kind, HostEnvironment environment) override
    {
        return m_requester.timeline(std::move(kind), std::move(environment));
    }
    Task<Answer<HostPicture>> render(std::string kind, ExtensionEntry entry, HostEnvironment environment) override
    {
        return m_requester.render(std::move(kind), std::move(entry), std::move(environment));
    }

private:
    WidgetRequester& m_requester;
};

}
