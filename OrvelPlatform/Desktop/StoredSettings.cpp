#include "OrvelPlatform/Desktop/StoredSettings.h"

#include <gio/gio.h>
#include <utility>

namespace orvel {

namespace {

struct Release {
    void operator()(GSettings* settings) const { g_object_unref(settings); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
};

using SchemaHandle = std::unique_ptr<GSettingsSchema, Release>;
using SettingsHandle = std::unique_ptr<GSettings, Release>;

/// An installed schema whose settings are stored in one place; null for any other.
SchemaHandle installedSchema(const char* name)
{
    auto* source = g_settings_schema_source_get_default();
    SchemaHandle schema(source ? g_settings_schema_source_lookup(source, name, TRUE) : nullptr);
    return schema && g_settings_schema_get_path(schema.get()) ? std::move(schema) : nullptr;
}

void receive(GSettings*, const char*, void* changed)
{
    (*static_cast<std::function<void()>*>(changed))();
}

}

struct StoredSettings::Schema {
    SchemaHandle schema;
    SettingsHandle settings; // null where there is no schema
    unsigned long handler = 0;

    Schema(SchemaHandle itsSchema, std::function<void()>* changed) : schema(std::move(itsSchema))
    {
        if (!schema)
            return;
        settings.reset(g_settings_new_full(schema.get(), nullptr, nullptr));
        handler = g_signal_connect(settings.get(), "changed", G_CALLBACK(&receive), changed);
    }
    Schema(const Schema&) = delete;
    Schema& operator=(const Schema&) = delete;
    ~Schema()
    {
        if (settings)
            g_signal_handler_disconnect(settings.get(), handler);
    }
};

StoredSettings::StoredSettings(const EventLoop& loop, std::function<void()> changed)
    : m_loop(loop), m_changed(std::move(changed))
{
}

StoredSettings::~StoredSettings() = default;

VariantHandle StoredSettings::value(const SettingName& name)
{
    const auto& found = schema(name.space);
    if (!found.settings || g_settings_schema_has_key(found.schema.get(), name.key) == FALSE)
        return nullptr;
    return VariantHandle(g_settings_get_value(found.settings.get(), name.key));
}

StoredSettings::Schema& StoredSettings::schema(const char* name)
{
    auto& found = m_schemas[name];
    if (!found) {
        const LoopScope scope(m_loop.context());
        found = std::make_unique<Schema>(installedSchema(name), &m_changed);
    }
    return *found;
}

}
