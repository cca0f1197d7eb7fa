#include "OrvelPlatform/Desktop/SettingsPortal.h"

#include <algorithm>
#include <chrono>
#include <gio/gio.h>
#include <iterator>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Desktop/BusCall.h"

namespace orvel {

namespace {

constexpr const char* portal = "org.freedesktop.portal.Desktop";
constexpr const char* path = "/org/freedesktop/portal/desktop";
constexpr const char* settings = "org.freedesktop.portal.Settings";

/// Where settings are read; everything else that changes is passed over.
constexpr const char* spaces[] = {
    "org.freedesktop.appearance",
    "org.gnome.desktop.interface",
    "org.gnome.desktop.a11y.interface",
};

/// How long a portal may take, its start included.
constexpr std::chrono::seconds patience { 25 };

bool isRead(std::string_view space)
{
    return std::ranges::find(spaces, space) != std::ranges::end(spaces);
}

/// Portals wrap values once more than they say, depending on their age.
VariantHandle unwrapped(VariantHandle value)
{
    while (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_VARIANT) != FALSE)
        value.reset(g_variant_get_variant(value.get()));
    return value;
}

}

SettingsPortal::SettingsPortal(BusConnection connection, std::function<void()> told)
    : m_connection(std::move(connection)), m_told(std::move(told))
{
    const LoopScope scope(m_connection.context());
    m_changes = g_dbus_connection_signal_subscribe(m_connection.get(), portal, settings, "SettingChanged", path,
        nullptr, G_DBUS_SIGNAL_FLAGS_NONE, &receive, this, nullptr);
    m_owners = g_dbus_connection_signal_subscribe(m_connection.get(), "org.freedesktop.DBus", "org.freedesktop.DBus",
        "NameOwnerChanged", "/org/freedesktop/DBus", portal, G_DBUS_SIGNAL_FLAGS_NONE, &receive, this, nullptr);
    readAll();
}

SettingsPortal::~SettingsPortal()
{
    g_dbus_connection_signal_unsubscribe(m_connection.get(), m_changes);
    g_dbus_connection_signal_unsubscribe(m_connection.get(), m_owners);
}

VariantHandle SettingsPortal::value(const SettingName& name) const
{
    const auto found = m_values.find({ name.space, name.key });
    return VariantHandle(found == m_values.end() ? nullptr : g_variant_ref(found->second.get()));
}

void SettingsPortal::readAll()
{
    m_reading = {}; // of a portal that left
    m_reading = start(reading(), [this](const auto&) { m_told(); });
}

Task<void> SettingsPortal::reading()
{
    // All at once: the calls for a single setting differ between the portals of today and those of Debian 12.
    const VariantHandle arguments(
        g_variant_ref_sink(g_variant_new("(@as)", g_variant_new_strv(spaces, std::size(spaces)))));
    const BusCall::Target target { .name = portal, .path = path, .interface = settings, .mayStart = true };
    BusCall call(m_connection, target, "ReadAll", arguments.get(), "(a{sa{sv}})", patience);
    const auto result = co_await call;
    if (result)
        keepAll(VariantHandle(g_variant_get_child_value(result->values.get(), 0)).get());
}

void SettingsPortal::keepAll(_GVariant* all)
{
    GVariantIter eachSpace;
    g_variant_iter_init(&eachSpace, all);
    const char* space = nullptr;
    GVariantIter* eachKey = nullptr;
    while (g_variant_iter_loop(&eachSpace, "{&sa{sv}}", &space, &eachKey) != FALSE) {
        const char* key = nullptr;
        _GVariant* value = nullptr;
        while (isRead(space) && g_variant_iter_next(eachKey, "{&sv}", &key, &value) != FALSE)
            keep(space, key, VariantHandle(value));
    }
}

void SettingsPortal::keep(const char* space, const char* key, VariantHandle value)
{
    m_values[{ space, key }] = unwrapped(std::move(value));
}

void SettingsPortal::receive(
    _GDBusConnection*, const char*, const char*, const char*, const char* signal, _GVariant* arguments, void* data)
{
    auto& self = *static_cast<SettingsPortal*>(data);
    const std::string_view name(signal);
    if (name == "NameOwnerChanged" && g_variant_is_of_type(arguments, G_VARIANT_TYPE("(sss)")) != FALSE) {
        const char* owner = nullptr;
        g_variant_get_child(arguments, 2, "&s", &owner);
        if (*owner != '\0')
            self.readAll();
    }
    if (name == "SettingChanged" && g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)")) != FALSE) {
        const char* space = nullptr;
        const char* key = nullptr;
        _GVariant* value = nullptr;
        g_variant_get(arguments, "(&s&sv)", &space, &key, &value);
        VariantHandle taken(value);
        if (!isRead(space))
            return;
        self.keep(space, key, std::move(taken));
        self.m_told();
    }
}

}
