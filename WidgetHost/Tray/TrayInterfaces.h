#pragma once

struct _GDBusInterfaceInfo;

namespace orvel {

/// The whole of TrayInterfaces.xml.
extern const char* const trayInterfaces;

namespace TrayName {
inline constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
inline constexpr const char* item = "org.kde.StatusNotifierItem"; // an item's interface, and how its name begins
inline constexpr const char* menu = "com.canonical.dbusmenu";
}

namespace TrayPath {
inline constexpr const char* watcher = "/StatusNotifierWatcher";
inline constexpr const char* item = "/StatusNotifierItem";
inline constexpr const char* menu = "/StatusNotifierItem/Menu";
}

/// One of the interfaces; it lives as long as the program.
_GDBusInterfaceInfo* trayInterface(const char* name);

}
