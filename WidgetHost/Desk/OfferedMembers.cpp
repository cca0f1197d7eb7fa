#include "WidgetHost/Desk/OfferedMembers.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "WidgetHost/Schedule/Attempts.h"

namespace orvel {

namespace {

bool isWidget(const ExtensionMember& member)
{
    return member.role == ExtensionMember::Role::widget;
}

}

OfferedMembers::OfferedMembers(Clock& clock, HostServices& services, std::function<void()> changed)
    : m_clock(clock), m_services(services), m_changed(std::move(changed))
{
}

void OfferedMembers::want(const HostEnvironment& environment)
{
    if (m_environment == environment)
        return;
    m_environment = environment;
    m_failures = 0;
    askAnew();
}

void OfferedMembers::askAnew()
{
    if (!m_environment)
        return;
    m_retry.reset();
    m_request = {}; // whatever was asked before is out of date
    m_request = start(m_services.members(*m_environment), [this](auto outcome) {
        const RequestFault brokenOff { RequestFault::Kind::unavailable, "The request broke off." };
        take(outcome ? *std::move(outcome) : std::unexpected(brokenOff));
    });
}

void OfferedMembers::take(Answer<std::vector<ExtensionMember>> answer)
{
    if (answer) {
        m_members = *std::move(answer);
        m_failures = 0;
    } else {
        m_retry = m_clock.after(pauseAfter(++m_failures), [this] { askAnew(); });
    }
    m_changed();
}

std::vector<ExtensionMember> OfferedMembers::widgets() const
{
    std::vector<ExtensionMember> widgets;
    if (m_members)
        std::ranges::copy_if(*m_members, std::back_inserter(widgets), isWidget);
    return widgets;
}

const ExtensionMember* OfferedMembers::widget(std::string_view kind) const
{
    if (!m_members)
        return nullptr;
    const auto found = std::ranges::find_if(
        *m_members, [&](const ExtensionMember& member) { return isWidget(member) && member.kind == kind; });
    return found == m_members->end() ? nullptr : &*found;
}

}
