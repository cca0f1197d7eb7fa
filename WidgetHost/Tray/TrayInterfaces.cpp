#include "WidgetHost/Tray/TrayInterfaces.h"

#include <gio/gio.h>

#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

_GDBusInterfaceInfo* trayInterface(const char* name)
{
    static const NodeInfoHandle node(g_dbus_node_info_new_for_xml(trayInterfaces, nullptr));
    precondition(node != nullptr, "the tray's interfaces cannot be read");
    auto* found = g_dbus_node_info_lookup_interface(node.get(), name);
    precondition(found != nullptr, "an interface is not among the tray's");
    return found;
}

}
