#include "OrvelPlatform/Desktop/GlibHandles.h"

#include <gio/gio.h>
#include <gio/gunixfdlist.h>

namespace orvel {

void GlibRelease::operator()(_GCancellable* cancellable) const
{
    g_object_unref(cancellable);
}

void GlibRelease::operator()(_GDBusConnection* connection) const
{
    g_object_unref(connection);
}

void GlibRelease::operator()(_GDBusNodeInfo* info) const
{
    g_dbus_node_info_unref(info);
}

void GlibRelease::operator()(_GError* error) const
{
    g_error_free(error);
}

void GlibRelease::operator()(_GMainContext* context) const
{
    g_main_context_unref(context);
}

void GlibRelease::operator()(_GSource* source) const
{
    g_source_destroy(source);
    g_source_unref(source);
}

void GlibRelease::operator()(_GUnixFDList* list) const
{
    g_object_unref(list);
}

void GlibRelease::operator()(_GVariant* value) const
{
    g_variant_unref(value);
}

void GlibRelease::operator()(char* text) const
{
    g_free(text);
}

}
