#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "WidgetHost/Controls/ControlCourse.h"

namespace orvel {

/// The extension's controls, its toggles and buttons, with the values that hold now: each is asked for at the start,
/// when the last one said that it changes, and whenever something else changed.
///
/// One timer serves all; between changes nothing happens. What fails is asked again after a second, two, four, up to
/// five minutes, and at once when something changes; meanwhile the last good value stays.
class ControlCenter {
public:
    /// Neither may destroy the center; both may call it.
    struct Events {
        std::function<void()> changed; // the controls, or whether the extension is reachable
        std::function<void(const std::string& kind, const RequestFault& fault)> useFailed;
    };

    /// Nothing is asked before there is an environment. The clock and the requests outlive the center.
    ControlCenter(Clock& clock, ControlRequests& requests, Events events);
    ControlCenter(const ControlCenter&) = delete;
    ControlCenter& operator=(const ControlCenter&) = delete;

    /// Where the controls are shown from now on.
    void setEnvironment(const HostEnvironment& environment);

    /// The application changed what these controls are made of; none means all of them. Unknown ones do not matter.
    void reload(const std::vector<std::string>& kinds);

    /// The clock on the wall was set, or the computer slept: what held before may not hold any more.
    void clockWasSet();

    /// Somebody clicked. A toggle turns to the state that it does not show and shows that at once; what the snapshot
    /// says counts again when the application told of a change, or after 5 seconds. False where there is nothing to do.
    bool use(const std::string& kind, std::optional<std::string> activationToken);

    /// In the extension's order.
    const std::vector<ShownControl>& controls() const { return m_told.controls; }

    /// False while the extension does not answer, whatever is still shown.
    bool isReachable() const { return m_told.isReachable; }

private:
    struct Told {
        std::vector<ShownControl> controls {};
        bool isReachable = true;
        bool operator==(const Told&) const = default;
    };

    void takeMembers();
    void keep(const std::vector<ExtensionMember>& members);
    ControlCourse* find(const std::string& kind);
    void update();
    void updateOnce();
    NextWake nextWake() const;
    void tell();
    void tellOfFaults();

    Clock& m_clock;
    ControlRequests& m_requests;
    Events m_events;
    std::optional<HostEnvironment> m_environment; // absent: nothing is asked yet
    Told m_told;
    bool m_isUpdating = false;
    bool m_hasAnswers = false; // that came while it was updating
    WakeTimer m_timer;
    Question<std::vector<ExtensionMember>> m_members;
    std::vector<std::unique_ptr<ControlCourse>> m_courses;
};

}
