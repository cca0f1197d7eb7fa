#include "WidgetHost/Windows/DesktopWindows.h"

#include <algorithm>

#include "WidgetHost/Windows/Monitors.h"

#include <gtkmm.h>

namespace orvel {

struct DesktopWindows::Listening {
    explicit Listening(DesktopWindows& windows)
    {
        const auto display = Gdk::Display::get_default();
        const auto screen = Gdk::Screen::get_default();
        // Several of these come for one change. Nothing is read before the last of them.
        const auto changed = [this, &windows] {
            later.disconnect();
            later = Glib::signal_idle().connect([&windows] {
                windows.refresh();
                return false;
            });
        };
        const auto changedMonitor = [changed](const Glib::RefPtr<Gdk::Monitor>&) { changed(); };
        connections.push_back(display->signal_monitor_added().connect(changedMonitor));
        connections.push_back(display->signal_monitor_removed().connect(changedMonitor));
        connections.push_back(screen->signal_monitors_changed().connect(changed));
        connections.push_back(screen->signal_size_changed().connect(changed));
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening()
    {
        later.disconnect();
        for (auto& connection : connections)
            connection.disconnect();
    }

    std::vector<sigc::connection> connections;
    sigc::connection later;
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
