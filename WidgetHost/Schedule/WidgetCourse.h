#pragma once

#include <functional>
#include <optional>

#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Base/Task.h"
#include "WidgetHost/Schedule/Attempts.h"
#include "WidgetHost/Schedule/NextWake.h"
#include "WidgetHost/Schedule/ScheduledWidget.h"
#include "WidgetHost/Schedule/WidgetRequests.h"

namespace orvel {

/// One widget's way through its timelines: at most one timeline and one picture are asked for at a time. It does
/// nothing by itself; `update` is to be called when an answer came and when something fell due, and when anything else
/// here was called.
class WidgetCourse {
public:
    /// `answered` is called when an answer came, perhaps from within `update`.
    WidgetCourse(ScheduledWidget widget, Clock& clock, WidgetRequests& requests, std::function<void()> answered);
    WidgetCourse(const WidgetCourse&) = delete; // requests know its place
    WidgetCourse& operator=(const WidgetCourse&) = delete;

    const ScheduledWidget& widget() const { return m_widget; }

    /// The same widget in other surroundings, for which everything is asked anew.
    void move(HostEnvironment environment);

    /// What the timeline was made of changed: one more is asked for, after the one that is under way.
    void askAnew();

    /// Takes the answers that came, and asks for what is wanted now.
    void update();

    const ShownWidget& shown() const { return m_shown; }
    NextWake nextWake() const;

private:
    /// What a picture shows.
    struct Scene {
        ExtensionEntry entry;
        HostEnvironment environment;
        bool operator==(const Scene&) const = default;
    };

    void takeTimeline();
    void keep(ExtensionTimeline timeline);
    void takePicture();
    void refusePicture(const RequestFault& fault);

    void askForTimeline();
    bool isTimelineDue() const;
    void askForPicture();
    void settleForPicture();

    std::optional<Scene> scene() const;

    ScheduledWidget m_widget;
    Clock& m_clock;
    WidgetRequests& m_requests;
    std::function<void()> m_answered;

    std::optional<ExtensionTimeline> m_timeline; // the last good one
    std::optional<Date> m_reload; // when that is to be asked anew; absent once that was done
    int m_hastyTimelines = 0; // in a row
    bool m_isTimelineWanted = true;
    Attempts m_timelineAttempts;
    std::optional<Answer<ExtensionTimeline>> m_timelineAnswer;

    ShownWidget m_shown;
    std::optional<Scene> m_drawn; // what is shown
    std::optional<Scene> m_asked; // what is being drawn, or could not be drawn
    bool m_isEntryBad = false; // the extension does not know the entry that holds: only another timeline helps
    Attempts m_pictureAttempts;
    std::optional<Answer<HostPicture>> m_pictureAnswer;

    StartedTask m_timelineRequest;
    StartedTask m_pictureRequest; // last, so that no answer comes to what is half gone
};

}
