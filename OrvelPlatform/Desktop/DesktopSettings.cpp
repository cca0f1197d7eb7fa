#include "OrvelPlatform/Desktop/DesktopSettings.h"

#include <utility>

namespace orvel {

DesktopSettings::DesktopSettings(const EventLoop& loop, std::function<void(const DesktopAppearance&)> changed)
    : m_changed(std::move(changed)), m_stored(loop, [this] { refresh(); })
{
    auto connection = BusConnection::connect(loop);
    if (connection)
        m_portal.emplace(*std::move(connection), [this] { refresh(); });
    const auto wait = connection ? patience : std::chrono::milliseconds { 0 };
    m_deadline = loop.after(wait, [this] { refresh(); });
}

void DesktopSettings::refresh()
{
    m_deadline.reset();
    const auto appearance = appearanceFrom([this](const SettingName& name) { return value(name); });
    if (std::exchange(m_appearance, appearance) != appearance)
        m_changed(appearance);
}

VariantHandle DesktopSettings::value(const SettingName& name)
{
    auto told = m_portal ? m_portal->value(name) : nullptr;
    return told ? std::move(told) : m_stored.value(name);
}

}
