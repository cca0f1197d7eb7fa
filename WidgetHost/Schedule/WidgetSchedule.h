#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "WidgetHost/Schedule/WidgetCourse.h"

namespace orvel {

/// Keeps the widgets on a desktop showing what holds now: asks for their timelines, shows each entry from its date on,
/// and asks again at the reload date and whenever something changes.
///
/// One timer serves all widgets; between changes nothing happens. A wake-up that comes late goes straight to what holds
/// then. A picture is asked for when its entry becomes due, and dropped when it arrives after that was replaced. What
/// fails is asked again after a second, two, four, up to five minutes, and at once when something changes; meanwhile
/// the last good picture stays.
class WidgetSchedule {
public:
    /// Told what a widget shows from now on, whenever that changes. May call the schedule, not destroy it.
    using Show = std::function<void(const std::string& id, const ShownWidget& shown)>;

    /// The clock and the requests outlive the schedule.
    WidgetSchedule(Clock& clock, WidgetRequests& requests, Show show);
    WidgetSchedule(const WidgetSchedule&) = delete;
    WidgetSchedule& operator=(const WidgetSchedule&) = delete;

    /// The widgets there are from now on. Those that were there in the same environment go on undisturbed; of two with
    /// one id the later counts.
    void setWidgets(const std::vector<ScheduledWidget>& widgets);

    /// The application changed what these kinds are made of; none means all of them. Unknown ones do not matter.
    void reload(const std::vector<std::string>& kinds);

    /// The clock on the wall was set, or the computer slept: what held before may not hold any more.
    void clockWasSet();

private:
    struct Placed {
        std::unique_ptr<WidgetCourse> course;
        ShownWidget told;
    };

    void place(const ScheduledWidget& widget);
    void update();
    NextWake nextWake() const;
    void tell();

    Clock& m_clock;
    WidgetRequests& m_requests;
    Show m_show;
    std::map<std::string, Placed> m_widgets;
    bool m_isUpdating = false;
    bool m_hasAnswers = false; // that came while it was updating
    WakeTimer m_timer;
};

}
