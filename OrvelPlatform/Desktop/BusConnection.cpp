#include "OrvelPlatform/Desktop/BusConnection.h"

#include <fmt/format.h>
#include <gio/gio.h>
#include <string_view>
#include <utility>

namespace orvel {

namespace {

constexpr int deadlineOfTheBus = 5000; // milliseconds; it answers by itself, without asking anybody
constexpr unsigned doNotQueue = 4;
constexpr unsigned primaryOwner = 1;
constexpr unsigned alreadyOwner = 4;

Fault fault(std::string_view where, const ErrorHandle& error)
{
    return { .where = std::string(where), .why = error ? error->message : "unknown", .cause = {} };
}

constexpr std::string_view sessionBus = "session bus";

}

std::expected<BusConnection, Fault> BusConnection::connect(const EventLoop& loop)
{
    const LoopScope scope(loop.context());
    ErrorHandle error;
    const GlibText address(g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, ErrorOut { error }));
    if (!address)
        return std::unexpected(fault(sessionBus, error));
    if (std::string_view(address.get()).starts_with("autolaunch:"))
        return std::unexpected(Fault { .where = std::string(sessionBus), .why = "none is running", .cause = {} });
    constexpr auto flags = static_cast<GDBusConnectionFlags>(
        G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    ConnectionHandle connection(
        g_dbus_connection_new_for_address_sync(address.get(), flags, nullptr, nullptr, ErrorOut { error }));
    if (!connection)
        return std::unexpected(fault(sessionBus, error));
    return BusConnection(loop, std::move(connection), true);
}

std::expected<BusConnection, Fault> BusConnection::shared(const EventLoop& loop)
{
    const LoopScope scope(loop.context());
    ErrorHandle error;
    ConnectionHandle connection(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, ErrorOut { error }));
    if (!connection)
        return std::unexpected(fault(sessionBus, error));
    return BusConnection(loop, std::move(connection), false);
}

BusConnection::BusConnection(const EventLoop& loop, ConnectionHandle connection, bool isOurs)
    : m_context(g_main_context_ref(loop.context())), m_connection(std::move(connection)), m_isOurs(isOurs)
{
}

BusConnection::BusConnection(BusConnection&& other) noexcept
    : m_context(std::move(other.m_context))
    , m_connection(std::move(other.m_connection))
    , m_isOurs(other.m_isOurs)
    , m_closedHandler(std::exchange(other.m_closedHandler, 0))
{
}

BusConnection::~BusConnection()
{
    if (!m_connection)
        return;
    if (m_closedHandler != 0)
        g_signal_handler_disconnect(m_connection.get(), m_closedHandler);
    if (m_isOurs)
        close();
}

void BusConnection::whenClosed(std::function<void()> what)
{
    using Callback = std::function<void()>;
    const auto call = +[](_GDBusConnection*, gboolean, _GError*, void* data) { (*static_cast<Callback*>(data))(); };
    const auto release =
        +[](void* data, GClosure*) { std::unique_ptr<Callback>(static_cast<Callback*>(data)).reset(); };
    if (m_closedHandler != 0)
        g_signal_handler_disconnect(m_connection.get(), m_closedHandler);
    m_closedHandler = g_signal_connect_data(m_connection.get(), "closed", G_CALLBACK(call),
        std::make_unique<Callback>(std::move(what)).release(), release, {});
}

bool BusConnection::isClosed() const
{
    return g_dbus_connection_is_closed(m_connection.get()) != FALSE;
}

std::expected<void, Fault> BusConnection::takeName(const char* name) const
{
    const auto answer = askTheBus("RequestName", g_variant_new("(su)", name, doNotQueue));
    if (!answer)
        return std::unexpected(answer.error());
    if (*answer != primaryOwner && *answer != alreadyOwner)
        return std::unexpected(Fault { .where = name, .why = "another process has this name", .cause = {} });
    return {};
}

std::expected<void, Fault> BusConnection::giveUpName(const char* name) const
{
    const auto answer = askTheBus("ReleaseName", g_variant_new("(s)", name));
    if (!answer)
        return std::unexpected(answer.error());
    return {};
}

void BusConnection::flush() const
{
    g_dbus_connection_flush_sync(m_connection.get(), nullptr, nullptr);
}

void BusConnection::settle() const
{
    VariantHandle(g_dbus_connection_call_sync(m_connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
        "org.freedesktop.DBus", "GetId", nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, deadlineOfTheBus, nullptr, nullptr));
}

void BusConnection::close() const
{
    if (isClosed())
        return;
    flush();
    g_dbus_connection_close_sync(m_connection.get(), nullptr, nullptr);
}

std::expected<unsigned, Fault> BusConnection::askTheBus(const char* method, _GVariant* arguments) const
{
    ErrorHandle error;
    const VariantHandle answer(g_dbus_connection_call_sync(m_connection.get(), "org.freedesktop.DBus",
        "/org/freedesktop/DBus", "org.freedesktop.DBus", method, arguments, G_VARIANT_TYPE("(u)"),
        G_DBUS_CALL_FLAGS_NONE, deadlineOfTheBus, nullptr, ErrorOut { error }));
    if (!answer)
        return std::unexpected(fault(method, error));
    unsigned number = 0;
    g_variant_get(answer.get(), "(u)", &number);
    return number;
}

}
