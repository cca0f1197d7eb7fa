#include "WidgetHost/Tray/Tray.h"

#include <algorithm>
#include <fmt/format.h>
#include <gio/gio.h>
#include <unistd.h>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/ServedObject.h"
#include "WidgetHost/Tray/TrayGlyph.h"
#include "WidgetHost/Tray/TrayInterfaces.h"
#include "WidgetHost/Tray/TrayMenu.h"

namespace orvel {

namespace {

constexpr const char* identifier = "orvel-widget-host";

constexpr int smallSide = static_cast<int>(MenuBarOrbGlyph::imageSide);

_GVariant* pixmap(int side, const std::string& pixels)
{
    return g_variant_new("(ii@ay)", side, side, bytesValue(pixels));
}

_GVariant* noPixmaps()
{
    return g_variant_new_array(G_VARIANT_TYPE("(iiay)"), nullptr, 0);
}

_GVariant* string(const std::string& text)
{
    return g_variant_new_string(boundedText(text).c_str());
}

/// What never changes.
_GVariant* constantProperty(std::string_view name)
{
    if (name == "Category")
        return g_variant_new_string("ApplicationStatus");
    if (name == "Id")
        return g_variant_new_string(identifier);
    if (name == "Status")
        return g_variant_new_string("Active"); // trays hide what is not, and some blink with what needs attention
    if (name == "WindowId")
        return g_variant_new_int32(0);
    if (name == "ItemIsMenu")
        return g_variant_new_boolean(FALSE);
    if (name == "Menu")
        return g_variant_new_object_path(TrayPath::menu);
    if (name == "OverlayIconPixmap" || name == "AttentionIconPixmap")
        return noPixmaps();
    return g_variant_new_string(""); // names of icons and folders, of which it has none
}

/// Some trays take the text of a tool tip for markup.
_GVariant* toolTip(const TrayContent& content)
{
    const GlibText text(g_markup_escape_text(boundedText(content.toolTipText).c_str(), -1));
    return g_variant_new("(s@a(iiay)@ss)", "", noPixmaps(), string(content.toolTipTitle), text.get());
}

}

/// The item on the bus.
class Tray::Item {
public:
    Item(BusConnection connection, TrayContent content, TrayEvents events);
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;
    ~Item();

    std::expected<void, Fault> serve();
    void watch();
    void show(const TrayContent& content);
    bool hasTray() const { return m_hasTray; }

private:
    /// The glyph at both sizes, as trays take it.
    struct Icon {
        std::string small;
        std::string large;
        bool operator==(const Icon&) const = default;
    };
    static Icon drawnIcon(const TrayContent& content);
    const Icon& icon() const;

    void enrol();
    void receive(MethodCall call);
    void keepToken(std::string token);
    TrayEvents::Token takeToken() { return std::exchange(m_token, std::nullopt); }
    VariantHandle property(std::string_view name) const;

    BusConnection m_connection;
    TrayContent m_content;
    TrayEvents m_events;
    mutable std::optional<Icon> m_icon; // drawn when a tray asks for it: on most desktops none does
    TrayEvents::Token m_token; // for the next thing that a person does
    std::string m_service; // under which the item is registered
    TrayMenu m_menu;
    std::optional<ServedObject> m_object;
    unsigned m_watch = 0; // 0: none
    bool m_hasTray = false;
};

Tray::Item::Item(BusConnection connection, TrayContent content, TrayEvents events)
    : m_connection(std::move(connection))
    , m_content(std::move(content))
    , m_events(std::move(events))
    , m_service(fmt::format("{}-{}-1", TrayName::item, ::getpid()))
    , m_menu(m_content, [this](const std::string& id) {
        if (m_events.chosen)
            m_events.chosen(id, takeToken());
    })
{
}

Tray::Item::~Item()
{
    if (m_watch != 0)
        g_bus_unwatch_name(m_watch);
}

Tray::Item::Icon Tray::Item::drawnIcon(const TrayContent& content)
{
    const auto image = MenuBarOrbGlyph::image(content.glyph);
    return { trayPixels(image.bitmaps[0], content.foreground), trayPixels(image.bitmaps[1], content.foreground) };
}

const Tray::Item::Icon& Tray::Item::icon() const
{
    if (!m_icon)
        m_icon = drawnIcon(m_content);
    return *m_icon;
}

std::expected<void, Fault> Tray::Item::serve()
{
    if (auto served = m_menu.serve(m_connection); !served)
        return served;
    auto object = ServedObject::serve(
        m_connection, TrayPath::item, trayInterface(TrayName::item),
        [this](MethodCall call) { receive(std::move(call)); },
        [this](std::string_view name) { return property(name); });
    if (!object)
        return std::unexpected(object.error());
    m_object.emplace(*std::move(object));
    // Within a container another process may have our number; trays also take the connection's own name.
    if (!m_connection.takeName(m_service.c_str()))
        m_service = g_dbus_connection_get_unique_name(m_connection.get());
    return {};
}

void Tray::Item::watch()
{
    const LoopScope scope(m_connection.context());
    const auto appeared =
        +[](_GDBusConnection*, const char*, const char*, void* self) { static_cast<Item*>(self)->enrol(); };
    const auto vanished =
        +[](_GDBusConnection*, const char*, void* self) { static_cast<Item*>(self)->m_hasTray = false; };
    m_watch = g_bus_watch_name_on_connection(
        m_connection.get(), TrayName::watcher, G_BUS_NAME_WATCHER_FLAGS_NONE, appeared, vanished, this, nullptr);
}

void Tray::Item::enrol()
{
    m_hasTray = true;
    // Whether it wants us is the tray's affair, so that nobody waits for its answer.
    g_dbus_connection_call(m_connection.get(), TrayName::watcher, TrayPath::watcher, TrayName::watcher,
        "RegisterStatusNotifierItem", g_variant_new("(s)", m_service.c_str()), nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START,
        -1, nullptr, nullptr, nullptr);
    if (m_events.trayCame)
        m_events.trayCame();
}

void Tray::Item::show(const TrayContent& content)
{
    const auto before = std::exchange(m_content, content);
    if (content == before)
        return;
    if (content.glyph != before.glyph || content.foreground != before.foreground) {
        const auto asked = std::exchange(m_icon, std::nullopt); // who never asked has nothing that grew old
        if (asked && *asked != icon())
            m_object->emit("NewIcon");
    }
    if (content.title != before.title)
        m_object->emit("NewTitle");
    if (content.toolTipTitle != before.toolTipTitle || content.toolTipText != before.toolTipText)
        m_object->emit("NewToolTip");
    m_menu.show(content);
}

void Tray::Item::receive(MethodCall call)
{
    const std::string method(call.method());
    const std::pair<const char*, decltype(m_events.activated)*> clicks[] = {
        { "Activate", &m_events.activated },
        { "ContextMenu", &m_events.menuAsked },
    };
    const auto* click =
        std::ranges::find(clicks, method, [](const auto& pair) { return std::string_view(pair.first); });
    if (method == "ProvideXdgActivationToken")
        keepToken(text(call.argument(0).get()).value_or(""));
    if (click == std::end(clicks) || !*click->second)
        return call.answer(Answer<void>()); // turned wheels and the third button mean nothing here
    const auto x = g_variant_get_int32(call.argument(0).get());
    const auto y = g_variant_get_int32(call.argument(1).get());
    call.answer(Answer<void>());
    (*click->second)(x, y, takeToken());
}

void Tray::Item::keepToken(std::string token)
{
    m_token.reset();
    if (!token.empty() && token.size() <= BusBound::text)
        m_token = std::move(token);
}

VariantHandle Tray::Item::property(std::string_view name) const
{
    const auto value = [&]() -> _GVariant* {
        if (name == "Title")
            return string(m_content.title);
        if (name == "IconAccessibleDesc")
            return string(m_content.toolTipTitle);
        if (name == "ToolTip")
            return toolTip(m_content);
        if (name != "IconPixmap")
            return constantProperty(name);
        _GVariant* both[] = { pixmap(smallSide, icon().small), pixmap(2 * smallSide, icon().large) };
        return g_variant_new_array(nullptr, both, std::size(both));
    };
    return VariantHandle(g_variant_ref_sink(value()));
}

std::expected<Tray, Fault> Tray::place(const EventLoop& loop, TrayContent content, TrayEvents events)
{
    auto connection = BusConnection::connect(loop);
    if (!connection)
        return std::unexpected(connection.error());
    auto item = std::make_unique<Item>(*std::move(connection), std::move(content), std::move(events));
    if (auto served = item->serve(); !served)
        return std::unexpected(served.error());
    item->watch();
    return Tray(std::move(item));
}

Tray::Tray(std::unique_ptr<Item> item) : m_item(std::move(item)) { }

Tray::Tray(Tray&&) noexcept = default;

Tray::~Tray() = default;

void Tray::show(const TrayContent& content)
{
    m_item->show(content);
}

bool Tray::isSeen() const
{
    return m_item->hasTray();
}

}
