#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/BusConnection.h"
#include "OrvelPlatform/Desktop/DesktopAppearance.h"

namespace orvel {

/// The settings that the desktop's portal tells, kept up to date. A portal that comes later, or anew, is read then;
/// what one that left has told still holds.
class SettingsPortal {
public:
    /// `told` is called when the portal has been asked, whatever came of it, and each time that a setting may have
    /// changed.
    SettingsPortal(BusConnection connection, std::function<void()> told);
    SettingsPortal(const SettingsPortal&) = delete; // GDBus knows its place
    SettingsPortal& operator=(const SettingsPortal&) = delete;
    ~SettingsPortal();

    VariantHandle value(const SettingName& name) const;

private:
    void readAll();
    Task<void> reading();
    void keepAll(_GVariant* settings);
    void keep(const char* space, const char* key, VariantHandle value);
    static void receive(
        _GDBusConnection*, const char*, const char*, const char*, const char* signal, _GVariant* arguments, void* data);

    BusConnection m_connection;
    std::function<void()> m_told;
    std::map<std::pair<std::string, std::string>, VariantHandle> m_values;
    unsigned m_changes;
    unsigned m_owners;
    StartedTask m_reading;
};

}
