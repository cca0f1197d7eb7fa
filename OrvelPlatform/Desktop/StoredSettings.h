#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "OrvelPlatform/Desktop/DesktopAppearance.h"
#include "OrvelPlatform/Desktop/EventLoop.h"

namespace orvel {

/// GNOME's settings where they are stored, for desktops without a portal. A schema is opened when it is first asked
/// for; one that is not installed, and a key that it lacks, are absent (GLib would end the process).
class StoredSettings {
public:
    /// `changed` is called when a setting that was looked up changes. The loop outlives this.
    StoredSettings(const EventLoop& loop, std::function<void()> changed);
    ~StoredSettings();

    VariantHandle value(const SettingName& name);

private:
    struct Schema;
    Schema& schema(const char* name);

    const EventLoop& m_loop;
    std::function<void()> m_changed;
    std::map<std::string, std::unique_ptr<Schema>> m_schemas;
};

}
