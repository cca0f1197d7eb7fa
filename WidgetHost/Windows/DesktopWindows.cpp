#include "WidgetHost/Windows/DesktopWindows.h"

#include <algorithm>

#include "WidgetHost/Windows/Monitors.h"

#include <gtkmm.h>

namespace orvel {

struct DesktopWindows::Listening {
    explicit Listening(DesktopWindows& itsWindows) : windows(itsWindows)
    {
        const auto display = Gdk::Display::get_default();
        const auto screen = Gdk::Screen::get_default();
        const auto changed = [this](const Glib::RefPtr<Gdk::Monitor>&) { refreshSoon(); };
        lasting.push_back(display->signal_monitor_added().connect(changed));
        lasting.push_back(display->signal_monitor_removed().connect(changed));
        lasting.push_back(screen->signal_monitors_changed().connect([this] { refreshSoon(); }));
        lasting.push_back(screen->signal_size_changed().connect([this] { refreshSoon(); }));
        listenToMonitors();
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening()
    {
        soon.disconnect();
        for (auto* connections : { &lasting, &ofMonitors })
            disconnect(*connections);
    }

    /// Each monitor says for itself where it is.
    void listenToMonitors()
    {
        disconnect(ofMonitors);
        const auto display = Gdk::Display::get_default();
        const auto changed = [this] { refreshSoon(); };
        for (int index = 0; index < display->get_n_monitors(); ++index) {
            const auto monitor = display->get_monitor(index);
            ofMonitors.push_back(monitor->property_geometry().signal_changed().connect(changed));
            ofMonitors.push_back(monitor->property_workarea().signal_changed().connect(changed));
        }
    }

    /// Several changes come at once. Nothing is read before the last of them.
    void refreshSoon()
    {
        soon.disconnect();
        soon = Glib::signal_idle().connect([this] {
            windows.refresh();
            return false;
        });
    }

    static void disconnect(std::vector<sigc::connection>& connections)
    {
        for (auto& connection : connections)
            connection.disconnect();
        connections.clear();
    }

    DesktopWindows& windows;
    std::vector<sigc::connection> lasting;
    std::vector<sigc::connection> ofMonitors;
    sigc::connection soon;
};

DesktopWindows::DesktopWindows(WindowWordsFor words)
    : m_words(std::move(words)), m_outputs(monitors()), m_listening(std::make_unique<Listening>(*this))
{
}

DesktopWindows::~DesktopWindows() = default;

std::vector<PlacedCard> DesktopWindows::takenBeside(const PlacedWindow& window) const
{
    std::vector<PlacedCard> taken;
    for (const auto* member : m_members) {
        if (const auto place = member == &window ? std::nullopt : member->placed())
            taken.push_back(*place);
    }
    return taken;
}

void DesktopWindows::refresh()
{
    m_outputs = monitors();
    m_listening->listenToMonitors();
    const auto members = m_members; // one may go when it is told
    for (auto* member : members) {
        if (std::ranges::find(m_members, member) != m_members.end())
            member->outputsChanged();
    }
}

DesktopWindows::Membership::Membership(DesktopWindows& windows, PlacedWindow& window)
    : m_windows(windows), m_window(window)
{
    m_windows.m_members.push_back(&window);
}

DesktopWindows::Membership::~Membership()
{
    std::erase(m_windows.m_members, &m_window);
}

}
