#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Clock.h"
#include "WidgetHost/Desk/HostServices.h"

namespace orvel {

/// What the extension offers, in the user's language. Asked when it is wanted first and when the language changes, and
/// until there is an answer; the last good one stays meanwhile.
class OfferedMembers {
public:
    /// `changed` is called when an answer came, perhaps from within a call. The others outlive this.
    OfferedMembers(Clock& clock, HostServices& services, std::function<void()> changed);
    OfferedMembers(const OfferedMembers&) = delete;
    OfferedMembers& operator=(const OfferedMembers&) = delete;

    /// Asks where this is another environment than the last.
    void want(const HostEnvironment& environment);

    /// Asks at once, whatever is known.
    void askAnew();

    bool areKnown() const { return m_members.has_value(); }
    bool isLastAnswerMissing() const { return m_failures > 0; }

    /// Those that are widgets, in the extension's order; none before they are known.
    std::vector<ExtensionMember> widgets() const;

    /// Null for a kind that is not known.
    const ExtensionMember* widget(std::string_view kind) const;

private:
    void take(Answer<std::vector<ExtensionMember>> answer);

    Clock& m_clock;
    HostServices& m_services;
    std::function<void()> m_changed;
    std::optional<HostEnvironment> m_environment;
    std::optional<std::vector<ExtensionMember>> m_members;
    int m_failures = 0; // in a row
    std::unique_ptr<Clock::Timer> m_retry;
    StartedTask m_request;
};

}
