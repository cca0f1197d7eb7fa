#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "OrvelPlatform/Desktop/DesktopAppearance.h"
#include "OrvelPlatform/Desktop/EventLoop.h"
#include "OrvelPlatform/Desktop/SettingsPortal.h"
#include "OrvelPlatform/Desktop/StoredSettings.h"

namespace orvel {

/// What the desktop says of appearance, kept up to date: from its portal, and what that does not tell from GNOME's
/// stored settings. Nothing is polled.
class DesktopSettings {
public:
    /// A portal that takes longer to answer is not waited for; its answer counts when it comes.
    static constexpr std::chrono::milliseconds patience { 1000 };

    /// `changed` is called on the loop: once when the settings are known for the first time, within the patience, and
    /// then for each change. It must not destroy this. The loop outlives this.
    DesktopSettings(const EventLoop& loop, std::function<void(const DesktopAppearance&)> changed);
    DesktopSettings(const DesktopSettings&) = delete;
    DesktopSettings& operator=(const DesktopSettings&) = delete;

    /// Absent until it is known.
    const std::optional<DesktopAppearance>& appearance() const { return m_appearance; }

private:
    void refresh();
    VariantHandle value(const SettingName& name);

    std::function<void(const DesktopAppearance&)> m_changed;
    std::optional<DesktopAppearance> m_appearance;
    StoredSettings m_stored;
    std::optional<SettingsPortal> m_portal; // absent: there is no bus
    SourceHandle m_deadline;
};

}
