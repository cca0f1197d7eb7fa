#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/EventLoop.h"
#include "WidgetHost/Controls/BusControlRequests.h"
#include "WidgetHost/Controls/ControlCenter.h"
#include "WidgetHost/Desk/Surroundings.h"
#include "WidgetHost/Panel/Panel.h"
#include "WidgetHost/Tray/Tray.h"

namespace orvel {

/// The extension's controls where people reach them: in the tray, and in the panel that a click there opens.
class ControlSurfaces {
public:
    struct Events {
        std::function<void(const std::string& activationToken)> galleryChosen;
        std::function<void()> quitChosen;
    };

    /// That a use came to nothing is said for as long.
    static constexpr Clock::Uptime troubleSpan = std::chrono::seconds { 10 };

    /// The others outlive this.
    ControlSurfaces(const EventLoop& loop, Clock& clock, WidgetRequester& requester, Events events);
    ControlSurfaces(const ControlSurfaces&) = delete;
    ControlSurfaces& operator=(const ControlSurfaces&) = delete;
    ~ControlSurfaces();

    /// Where the controls are from now on; the first time, the tray gets its item.
    void show(const Surroundings& around);

    /// Brings the panel into sight, with the token of what asked for it.
    void raisePanel(const std::string& activationToken);

    void reload(const std::vector<std::string>& kinds) { m_center.reload(kinds); }
    void clockWasSet() { m_center.clockWasSet(); }

    /// Whether people can reach the host by its item in a tray.
    bool isInTray() const { return m_tray && m_tray->isSeen(); }

private:
    void update();
    void askForValues();
    void placeTray();
    void use(const std::string& kind, std::optional<bool> wanted, std::optional<std::string> activationToken);
    void useFailed(const RequestFault& fault);
    PanelEvents panelEvents();

    const EventLoop& m_loop;
    Clock& m_clock;
    Events m_events;
    BusControlRequests m_requests;
    std::optional<Surroundings> m_around;
    bool m_areValuesWanted = false; // from the first tray or panel on; widgets alone need none
    std::optional<std::string> m_trouble;
    std::unique_ptr<Clock::Timer> m_troubleEnd;
    std::unique_ptr<Panel> m_panel; // while it is in sight
    SourceHandle m_panelEnd;
    std::optional<Tray> m_tray;
    ControlCenter m_center; // last, so that no answer comes to what is half gone
};

}
