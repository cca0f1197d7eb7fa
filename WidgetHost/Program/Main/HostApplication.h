#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "OrvelPlatform/Desktop/DesktopSettings.h"
#include "OrvelPlatform/Desktop/LinkOpener.h"
#include "OrvelPlatform/Desktop/WidgetCenter.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Desk/BusServices.h"
#include "WidgetHost/Desk/Desk.h"
#include "WidgetHost/Gallery/Gallery.h"
#include "WidgetHost/Program/FileWatch.h"
#include "WidgetHost/Program/HostCall.h"
#include "WidgetHost/Program/Main/ControlSurfaces.h"
#include "WidgetHost/Windows/DesktopWindows.h"
#include "WidgetHost/Windows/WidgetWindow.h"

namespace orvel {

/// The running host: a desk, its windows, its gallery and its controls, and the desktop that tells them what changes.
/// The toolkit is up before it; everything happens on the loop.
class HostApplication {
public:
    /// `quit` ends the program; it may be called at any time after the loop began to turn.
    HostApplication(EventLoop& loop, std::function<void()> quit);
    HostApplication(const HostApplication&) = delete;
    HostApplication& operator=(const HostApplication&) = delete;
    ~HostApplication();

    const Desk& desk() const { return m_desk; }

    void add(const HostCall::Add& widget);
    void raiseGallery(const std::string& activationToken = {});
    void raiseControls(const std::string& activationToken) { m_controls.raisePanel(activationToken); }

private:
    DeskListener listener();
    WidgetWindowEvents windowEvents(const std::string& id);
    GalleryEvents galleryEvents();
    void showFace(const std::string& id, const WidgetFace& face);
    void showRest();
    void galleryClosed();

    EventLoop& m_loop;
    std::function<void()> m_quit;
    DesktopClock m_clock;
    WidgetRequester m_requester;
    LinkOpener m_links;
    BusServices m_services;
    HostStateFile m_file;
    Desk m_desk;

    DesktopWindows m_windows;
    std::map<std::string, WidgetWindow> m_widgets;
    std::unique_ptr<Gallery> m_gallery; // while it is in sight
    SourceHandle m_galleryEnd;

    ControlSurfaces m_controls;

    std::optional<WidgetCenterListener> m_center;
    std::unique_ptr<Clock::Timer> m_whenSet;
    FileWatch m_zone;
    DesktopSettings m_settings; // last: it begins to tell
};

}
