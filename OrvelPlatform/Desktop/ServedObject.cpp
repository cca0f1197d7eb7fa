#include "OrvelPlatform/Desktop/ServedObject.h"

#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <string>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

struct ServedObject::Served {
    std::string path;
    _GDBusInterfaceInfo* interface;
    Handler handler;
    PropertyReader property;
};

namespace {

template <typename Served>
void call(_GDBusConnection*, const char*, const char*, const char*, const char*, _GVariant*,
    _GDBusMethodInvocation* invocation, void* data)
{
    const auto handler = static_cast<Served*>(data)->handler; // the object may be taken away by what it does
    handler(MethodCall(invocation));
}

template <typename Served>
_GVariant* property(
    _GDBusConnection*, const char*, const char*, const char*, const char* name, _GError** error, void* data)
{
    auto value = static_cast<Served*>(data)->property(name);
    if (!value)
        g_set_error(error, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_PROPERTY, "%s has no value.", name);
    return value.release();
}

/// Version is the only property that the contract has.
VariantHandle contractProperty(std::string_view)
{
    return VariantHandle(g_variant_ref_sink(g_variant_new_uint32(contractVersion)));
}

}

MethodCall::MethodCall(_GDBusMethodInvocation* invocation) : m_invocation(invocation) { }

std::string_view MethodCall::sender() const
{
    const char* name = g_dbus_method_invocation_get_sender(m_invocation.get());
    return name ? name : "";
}

std::string_view MethodCall::method() const
{
    return g_dbus_method_invocation_get_method_name(m_invocation.get());
}

VariantHandle MethodCall::argument(std::size_t index) const
{
    return VariantHandle(g_variant_get_child_value(g_dbus_method_invocation_get_parameters(m_invocation.get()), index));
}

void MethodCall::answer(Answer<Reply> reply)
{
    if (!reply)
        return refuse(reply.error());
    g_dbus_method_invocation_return_value_with_unix_fd_list(
        m_invocation.release(), reply->values.get(), reply->files.get());
}

void MethodCall::answer(const Answer<void>& done)
{
    if (!done)
        return refuse(done.error());
    g_dbus_method_invocation_return_value(m_invocation.release(), nullptr);
}

void MethodCall::refuse(const RequestFault& fault)
{
    const std::string name(errorName(fault.kind).value_or("org.freedesktop.DBus.Error.Failed"));
    g_dbus_method_invocation_return_dbus_error(
        m_invocation.release(), name.c_str(), boundedText(fault.sentence).c_str());
}

void MethodCall::Release::operator()(_GDBusMethodInvocation* invocation) const
{
    g_dbus_method_invocation_return_dbus_error(
        invocation, "org.freedesktop.DBus.Error.Failed", "The call was given up.");
}

std::expected<ServedObject, Fault> ServedObject::serve(
    const BusConnection& connection, const char* path, const char* interface, Handler handler)
{
    return serve(connection, path, contractInterface(interface), std::move(handler), &contractProperty);
}

std::expected<ServedObject, Fault> ServedObject::serve(const BusConnection& connection, const char* path,
    _GDBusInterfaceInfo* interface, Handler handler, PropertyReader property)
{
    static constexpr GDBusInterfaceVTable table {
        .method_call = &orvel::call<Served>, .get_property = &orvel::property<Served>, .set_property = {}, .padding = {}
    };
    const LoopScope scope(connection.context());
    auto served = std::make_unique<Served>(Served {
        .path = path, .interface = interface, .handler = std::move(handler), .property = std::move(property) });
    ErrorHandle error;
    const auto identifier = g_dbus_connection_register_object(
        connection.get(), path, interface, &table, served.get(), nullptr, ErrorOut { error });
    if (identifier == 0)
        return std::unexpected(Fault { .where = path, .why = error->message, .cause = {} });
    return ServedObject(connection.get(), std::move(served), identifier);
}

ServedObject::ServedObject(_GDBusConnection* connection, std::unique_ptr<Served> served, unsigned identifier)
    : m_connection(static_cast<_GDBusConnection*>(g_object_ref(connection)))
    , m_served(std::move(served))
    , m_identifier(identifier)
{
}

ServedObject::ServedObject(ServedObject&& other) noexcept
    : m_connection(std::move(other.m_connection))
    , m_served(std::move(other.m_served))
    , m_identifier(std::exchange(other.m_identifier, 0))
{
}

ServedObject::~ServedObject()
{
    if (m_identifier != 0)
        g_dbus_connection_unregister_object(m_connection.get(), m_identifier);
}

void ServedObject::emit(const char* signal, _GVariant* arguments) const
{
    g_dbus_connection_emit_signal(
        m_connection.get(), nullptr, m_served->path.c_str(), m_served->interface->name, signal, arguments, nullptr);
}

}
