#include "WidgetHost/Desk/BusServices.h"

namespace orvel {

Task<Answer<ExtensionTimeline>> BusServices::timeline(std::string kind, HostEnvironment environment)
{
    return m_requester.timeline(std::move(kind), std::move(environment));
}

Task<Answer<HostPicture>> BusServices::render(std::string kind, ExtensionEntry entry, HostEnvironment environment)
{
    return m_requester.render(std::move(kind), std::move(entry), std::move(environment));
}

Task<Answer<std::vector<ExtensionMember>>> BusServices::members(HostEnvironment environment)
{
    return m_requester.members(std::move(environment));
}

Task<Answer<ExtensionEntry>> BusServices::snapshot(std::string kind, HostEnvironment environment)
{
    return m_requester.snapshot(std::move(kind), std::move(environment));
}

Task<Answer<void>> BusServices::perform(std::string intent, IntentParameters parameters, IntentPlatform platform)
{
    return m_requester.perform(std::move(intent), std::move(parameters), std::move(platform));
}

Task<std::expected<void, Fault>> BusServices::opened(std::string url, std::optional<std::string> activationToken)
{
    return m_links.opened(std::move(url), std::move(activationToken));
}

}
