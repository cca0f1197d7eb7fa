#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "WidgetHost/Controls/ControlRequests.h"
#include "WidgetHost/Controls/Question.h"
#include "WidgetHost/Controls/ShownControl.h"
#include "WidgetHost/Schedule/NextWake.h"

namespace orvel {

/// One control's way through its values and uses. It does nothing by itself; `update` is to be called when an answer
/// came and when something fell due, and when anything else here was called.
class ControlCourse {
public:
    /// A use that nobody reports back on is settled after this time.
    static constexpr Clock::Uptime patience = std::chrono::seconds { 5 };

    /// `answered` is called when an answer came, perhaps from within `update`.
    ControlCourse(ExtensionMember member, HostEnvironment environment, Clock& clock, ControlRequests& requests,
        std::function<void()> answered);

    /// The same control, described and seen in other surroundings. Its value is asked for anew where these differ.
    void describe(ExtensionMember member) { m_shown.member = std::move(member); }
    void move(const HostEnvironment& environment);

    /// The value may be another one: one more is asked for, after the one that is under way.
    void askAnew() { m_value.want(); }

    /// The same because the application said so, which settles what was asked for.
    void reload();

    /// Performs the control's intent: a toggle's with the state that it does not show, which it then shows. Every use
    /// is a call of its own, made when the one before is over: while that waits, another one would be refused. False
    /// for a control with no intent that can be run so.
    bool use(IntentPlatform platform);

    /// Takes the answers that came, and asks and performs what is wanted now.
    void update();

    const ShownControl& shown() const { return m_shown; }
    bool isReachable() const { return m_value.isReachable(); }
    NextWake nextWake() const;

    /// Why the last use came to nothing, once.
    std::optional<RequestFault> takeFault() { return std::exchange(m_fault, std::nullopt); }

private:
    struct Use {
        std::string intent;
        IntentParameters parameters;
        IntentPlatform platform;
    };
    /// How what was asked for is settled: by a value that is asked for after the application told of a change, or after
    /// the patience.
    enum class Settling : std::uint8_t { settled, waits, isDue, isAsked };

    void takeValue();
    void keep(ControlValue value);
    void takeOutcome();
    void perform();
    void settle();
    void askForValue();

    ShownControl m_shown;
    HostEnvironment m_environment;
    Clock& m_clock;
    ControlRequests& m_requests;
    std::function<void()> m_answered;

    Question<ControlValue> m_value;
    std::optional<Date> m_changes; // when the value is to be asked anew; absent once that was done
    int m_hastyValues = 0; // in a row

    Settling m_settling = Settling::settled;
    Clock::Uptime m_patienceEnds { 0 };
    std::deque<Use> m_uses; // that wait for their turn
    std::optional<Answer<void>> m_outcome;
    std::optional<RequestFault> m_fault;
    StartedTask m_performing; // last, so that no answer comes to what is half gone
};

}
