#include "WidgetHost/Program/SingleInstance.h"

#include <utility>

#include <gio/gio.h>

namespace orvel {

namespace {

using Wishes = SingleInstance::Wishes;

constexpr const char* galleryAction = "gallery"; // takes an activation token, and so does the next
constexpr const char* controlsAction = "controls";
constexpr const char* addAction = "add"; // takes a kind, a family and a look
constexpr const char* quitAction = "quit";
constexpr std::chrono::seconds quitPatience { 5 };

const Wishes& wishesOf(gpointer data)
{
    return *static_cast<const Wishes*>(data);
}

void activated(GApplication*, gpointer data)
{
    if (const auto& gallery = wishesOf(data).gallery)
        gallery({});
}

void galleryAsked(GSimpleAction*, GVariant* token, gpointer data)
{
    if (const auto& gallery = wishesOf(data).gallery)
        gallery(g_variant_get_string(token, nullptr));
}

void controlsAsked(GSimpleAction*, GVariant* token, gpointer data)
{
    if (const auto& controls = wishesOf(data).controls)
        controls(g_variant_get_string(token, nullptr));
}

void addAsked(GSimpleAction*, GVariant* widget, gpointer data)
{
    const char* kind = nullptr;
    const char* family = nullptr;
    const char* look = nullptr;
    g_variant_get(widget, "(&s&s&s)", &kind, &family, &look);
    const auto chosen = fromRawValue<ChosenLook>(look);
    if (const auto& add = wishesOf(data).add; add && chosen)
        add({ kind, family, *chosen });
}

void quitAsked(GSimpleAction*, GVariant*, gpointer data)
{
    if (const auto& quit = wishesOf(data).quit)
        quit();
}

using ActionHandler = void (*)(GSimpleAction*, GVariant*, gpointer);

void addAction_(GApplication* application, const char* actionName, const char* type, ActionHandler handler, Wishes* to)
{
    const auto parameter = type ? g_variant_type_new(type) : nullptr;
    const auto action = g_simple_action_new(actionName, parameter);
    if (parameter)
        g_variant_type_free(parameter);
    g_signal_connect(action, "activate", G_CALLBACK(handler), to);
    g_action_map_add_action(G_ACTION_MAP(application), G_ACTION(action));
    g_object_unref(action);
}

void isGone(GDBusConnection*, const char*, gpointer data)
{
    *static_cast<bool*>(data) = true;
}

}

void SingleInstance::Release::operator()(_GApplication* application) const
{
    g_object_unref(application);
}

SingleInstance::SingleInstance(_GApplication* application)
    : m_application(application), m_wishes(std::make_unique<Wishes>())
{
    g_signal_connect(application, "activate", G_CALLBACK(activated), m_wishes.get());
    addAction_(application, galleryAction, "s", galleryAsked, m_wishes.get());
    addAction_(application, controlsAction, "s", controlsAsked, m_wishes.get());
    addAction_(application, addAction, "(sss)", addAsked, m_wishes.get());
    addAction_(application, quitAction, nullptr, quitAsked, m_wishes.get());
}

SingleInstance::SingleInstance(SingleInstance&&) noexcept = default;
SingleInstance::~SingleInstance() = default;

std::expected<SingleInstance, Fault> SingleInstance::find()
{
    SingleInstance instance(g_application_new(name, G_APPLICATION_DEFAULT_FLAGS));
    ErrorHandle error;
    const auto isRegistered = g_application_register(instance.m_application.get(), nullptr, ErrorOut { error });
    if (!isRegistered)
        return std::unexpected(Fault { {}, error->message });
    if (!g_application_get_dbus_connection(instance.m_application.get()))
        return std::unexpected(Fault { {}, "there is no session bus" });
    return instance;
}

bool SingleInstance::isElsewhere() const
{
    return g_application_get_is_remote(m_application.get());
}

void SingleInstance::listen(Wishes wishes)
{
    *m_wishes = std::move(wishes);
}

void SingleInstance::flush() const
{
    g_dbus_connection_flush_sync(g_application_get_dbus_connection(m_application.get()), nullptr, nullptr);
}

void SingleInstance::askForGallery(const std::string& activationToken) const
{
    askToShow(galleryAction, activationToken);
}

void SingleInstance::askForControls(const std::string& activationToken) const
{
    askToShow(controlsAction, activationToken);
}

void SingleInstance::askToShow(const char* action, const std::string& activationToken) const
{
    g_action_group_activate_action(
        G_ACTION_GROUP(m_application.get()), action, g_variant_new_string(activationToken.c_str()));
    flush();
}

void SingleInstance::askToAdd(const HostCall::Add& widget) const
{
    const std::string look(rawValue(widget.look));
    g_action_group_activate_action(G_ACTION_GROUP(m_application.get()), addAction,
        g_variant_new("(sss)", widget.kind.c_str(), widget.family.c_str(), look.c_str()));
    flush();
}

std::expected<void, Fault> SingleInstance::askToQuit(EventLoop& loop) const
{
    auto hasGone = false;
    auto isLate = false;
    const auto deadline = loop.after(quitPatience, [&] { isLate = true; });
    const auto connection = g_application_get_dbus_connection(m_application.get());
    g_action_group_activate_action(G_ACTION_GROUP(m_application.get()), quitAction, nullptr);
    const auto watch = g_bus_watch_name_on_connection(
        connection, name, G_BUS_NAME_WATCHER_FLAGS_NONE, nullptr, isGone, &hasGone, nullptr);
    while (!hasGone && !isLate)
        loop.turn(true);
    g_bus_unwatch_name(watch);
    if (!hasGone)
        return std::unexpected(Fault { {}, "the widget host that runs does not end" });
    return {};
}

}
