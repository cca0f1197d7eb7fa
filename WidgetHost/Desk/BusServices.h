#pragma once

#include "OrvelPlatform/Desktop/LinkOpener.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Desk/HostServices.h"

namespace orvel {

/// The extension on the bus, and the desktop's own way to open links.
class BusServices : public HostServices {
public:
    /// Both outlive every request.
    BusServices(WidgetRequester& requester, LinkOpener& links) : m_requester(requester), m_links(links) { }

    Task<Answer<ExtensionTimeline>> timeline(std::string kind, HostEnvironment environment) override;
    Task<Answer<HostPicture>> render(std::string kind, ExtensionEntry entry, HostEnvironment environment) override;
    Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment) override;
    Task<Answer<ExtensionEntry>> snapshot(std::string kind, HostEnvironment environment) override;
    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override;
    Task<std::expected<void, Fault>> opened(std::string url, std::optional<std::string> activationToken) override;

private:
    WidgetRequester& m_requester;
    LinkOpener& m_links;
};

}
