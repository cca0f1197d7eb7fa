#include "OrvelPlatform/Desktop/WidgetCenter.h"

#include <gio/gio.h>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

namespace {

using Handlers = WidgetCenterListener::Handlers;

std::vector<std::string> kindsOf(_GVariant* arguments)
{
    const VariantHandle list(g_variant_get_child_value(arguments, 0));
    const auto count = g_variant_n_children(list.get());
    std::vector<std::string> kinds;
    if (count > WidgetCenterListener::mostKinds)
        return kinds;
    for (gsize index = 0; index < count; ++index) {
        const VariantHandle kind(g_variant_get_child_value(list.get(), index));
        kinds.emplace_back(g_variant_get_string(kind.get(), nullptr));
    }
    return kinds;
}

void receive(
    _GDBusConnection*, const char*, const char*, const char*, const char* signal, _GVariant* arguments, void* data)
{
    if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(as)")))
        return;
    const auto handlers = *static_cast<Handlers*>(data); // the listener may go while it is called
    const auto isTimelines = std::string_view(signal) == "ReloadTimelines";
    const auto isControls = std::string_view(signal) == "ReloadControls";
    if (isTimelines && handlers.reloadTimelines)
        handlers.reloadTimelines(kindsOf(arguments));
    if (isControls && handlers.reloadControls)
        handlers.reloadControls(kindsOf(arguments));
}

}

std::expected<WidgetCenter, Fault> WidgetCenter::connect(const EventLoop& loop)
{
    auto connection = BusConnection::connect(loop);
    if (!connection)
        return std::unexpected(connection.error());
    return WidgetCenter(*std::move(connection));
}

std::expected<void, Fault> WidgetCenter::reloadTimelines(const std::vector<std::string>& kinds) const
{
    return emit("ReloadTimelines", kinds);
}

std::expected<void, Fault> WidgetCenter::reloadControls(const std::vector<std::string>& kinds) const
{
    return emit("ReloadControls", kinds);
}

std::expected<void, Fault> WidgetCenter::emit(const char* signal, const std::vector<std::string>& kinds) const
{
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE_STRING_ARRAY);
    for (const auto& kind : kinds)
        g_variant_builder_add(&list, "s", boundedText(kind).c_str());
    ErrorHandle error;
    const auto isSent = g_dbus_connection_emit_signal(m_connection.get(), nullptr, BusPath::widgetCenter,
        BusInterface::widgetCenter, signal, g_variant_new("(as)", &list), ErrorOut { error });
    if (!isSent)
        return std::unexpected(Fault { .where = signal, .why = error->message, .cause = {} });
    m_connection.flush();
    return {};
}

std::expected<WidgetCenterListener, Fault> WidgetCenterListener::listen(const EventLoop& loop, Handlers handlers)
{
    auto connection = BusConnection::connect(loop);
    if (!connection)
        return std::unexpected(connection.error());
    return WidgetCenterListener(*std::move(connection), std::move(handlers));
}

WidgetCenterListener::WidgetCenterListener(BusConnection connection, Handlers handlers)
    : m_connection(std::move(connection)), m_handlers(std::make_unique<Handlers>(std::move(handlers)))
{
    const LoopScope scope(m_connection.context());
    m_subscription = g_dbus_connection_signal_subscribe(m_connection.get(), nullptr, BusInterface::widgetCenter,
        nullptr, BusPath::widgetCenter, nullptr, G_DBUS_SIGNAL_FLAGS_NONE, &receive, m_handlers.get(), nullptr);
    m_connection.settle(); // what is said from now on is heard
}

WidgetCenterListener::WidgetCenterListener(WidgetCenterListener&& other) noexcept
    : m_connection(std::move(other.m_connection))
    , m_handlers(std::move(other.m_handlers))
    , m_subscription(std::exchange(other.m_subscription, 0))
{
}

WidgetCenterListener::~WidgetCenterListener()
{
    if (m_subscription != 0)
        g_dbus_connection_signal_unsubscribe(m_connection.get(), m_subscription);
}

}
