#include <gio/gio.h>

/// The least that a service can be that the bus starts: it answers a method without arguments with nothing. What other
/// services take longer than this one is their own.
namespace {

constexpr const char* name = "app.orvel.Peer.EmptyService";
constexpr const char* path = "/app/orvel/Peer/EmptyService";
constexpr const char* interface = "<node><interface name='app.orvel.Peer.EmptyService1'><method name='Nothing'/>"
                                  "</interface></node>";

void answer(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*,
    GDBusMethodInvocation* invocation, void*)
{
    g_dbus_method_invocation_return_value(invocation, nullptr);
}

constexpr GDBusInterfaceVTable table { .method_call = &answer, .get_property = {}, .set_property = {}, .padding = {} };

}

int main()
{
    auto* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    auto* node = g_dbus_node_info_new_for_xml(interface, nullptr);
    if (!bus || !node)
        return 1;
    g_dbus_connection_register_object(bus, path, node->interfaces[0], &table, nullptr, nullptr, nullptr);
    g_bus_own_name_on_connection(bus, name, G_BUS_NAME_OWNER_FLAGS_NONE, nullptr, nullptr, nullptr, nullptr);
    g_main_loop_run(g_main_loop_new(nullptr, FALSE));
    return 0;
}
