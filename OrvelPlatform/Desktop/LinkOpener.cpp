#include "OrvelPlatform/Desktop/LinkOpener.h"

#include <array>
#include <chrono>
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <initializer_list>
#include <memory>
#include <utility>

#include "OrvelPlatform/Base/URL.h"
#include "OrvelPlatform/Base/UTF8.h"
#include "OrvelPlatform/Desktop/BusCall.h"
#include "OrvelPlatform/Desktop/BusValues.h"

namespace orvel {

namespace {

/// How long a way may take, an application's start included.
constexpr std::chrono::seconds patience { 25 };

/// One URL on its way.
struct Errand {
    std::string url;
    std::optional<std::string> token;
    std::optional<LinkHandler> handler;
};

/// A call that opens it.
struct Way {
    std::string name;
    std::string path;
    const char* interface;
    bool mayStart;
    const char* method;
    VariantHandle arguments;
    const char* replyType;
};

VariantHandle sunk(_GVariant* tuple)
{
    return VariantHandle(g_variant_ref_sink(tuple));
}

_GVariant* listOf(const std::vector<std::string>& texts)
{
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE("as"));
    for (const auto& text : texts)
        g_variant_builder_add(&list, "s", text.c_str());
    return g_variant_builder_end(&list);
}

_GVariant* tokenUnder(std::initializer_list<const char*> names, const std::optional<std::string>& token)
{
    DictionaryWriter writer;
    for (const char* name : names)
        writer.add(name, token);
    return writer.end();
}

/// An application with a name on the bus gets the URL there; the bus starts it where it does not run.
std::optional<Way> application(const Errand& errand)
{
    const auto& handler = errand.handler;
    if (!handler || !handler->isBusActivatable || !handler->busName())
        return std::nullopt;
    return Way {
        .name = *handler->busName(),
        .path = handler->objectPath(),
        .interface = "org.freedesktop.Application",
        .mayStart = true,
        .method = "Open",
        .arguments = sunk(g_variant_new("(@as@a{sv})", listOf({ errand.url }),
            tokenUnder({ "activation-token", "desktop-startup-id" }, errand.token))),
        .replyType = "()",
    };
}

/// What the service manager is to know of a unit that runs a command.
_GVariant* unitProperties(const LinkHandler& handler, const Errand& errand)
{
    GVariantBuilder all;
    g_variant_builder_init(&all, G_VARIANT_TYPE("a(sv)"));
    const auto add = [&](const char* name, _GVariant* value) { g_variant_builder_add(&all, "(sv)", name, value); };
    const auto addText = [&](const char* name, const char* text) { add(name, g_variant_new_string(text)); };
    addText("Description", handler.name.c_str());
    addText("Type", "exec");
    addText("ExitType", "cgroup"); // an application may go on in a child
    addText("CollectMode", "inactive-or-failed");
    addText("Slice", "app.slice");
    if (handler.folder)
        addText("WorkingDirectory", handler.folder->c_str());
    if (errand.token)
        add("Environment", listOf({ "XDG_ACTIVATION_TOKEN=" + *errand.token, "DESKTOP_STARTUP_ID=" + *errand.token }));
    const auto command = handler.commandFor(errand.url);
    GVariantBuilder starts;
    g_variant_builder_init(&starts, G_VARIANT_TYPE("a(sasb)"));
    g_variant_builder_add(&starts, "(s@asb)", command.front().c_str(), listOf(command), FALSE);
    add("ExecStart", g_variant_builder_end(&starts));
    return g_variant_builder_end(&all);
}

std::optional<Way> serviceManager(const Errand& errand)
{
    const auto& handler = errand.handler;
    const GlibText program(
        handler && !handler->command.empty() ? g_find_program_in_path(handler->command.front().c_str()) : nullptr);
    if (!program)
        return std::nullopt;
    auto started = *handler;
    started.command.front() = program.get();
    const GlibText unique(g_uuid_string_random());
    const auto unit = std::string("app-orvel-link-") + unique.get() + ".service";
    return Way {
        .name = "org.freedesktop.systemd1",
        .path = "/org/freedesktop/systemd1",
        .interface = "org.freedesktop.systemd1.Manager",
        .mayStart = false,
        .method = "StartTransientUnit",
        .arguments = sunk(g_variant_new("(ss@a(sv)@a(sa(sv)))", unit.c_str(), "fail", unitProperties(started, errand),
            g_variant_new_array(G_VARIANT_TYPE("(sa(sv))"), nullptr, 0))),
        .replyType = "(o)",
    };
}

std::optional<Way> portal(const Errand& errand)
{
    return Way {
        .name = "org.freedesktop.portal.Desktop",
        .path = "/org/freedesktop/portal/desktop",
        .interface = "org.freedesktop.portal.OpenURI",
        .mayStart = true,
        .method = "OpenURI",
        .arguments =
            sunk(g_variant_new("(ss@a{sv})", "", errand.url.c_str(), tokenUnder({ "activation_token" }, errand.token))),
        .replyType = "(o)",
    };
}

struct ObjectRelease {
    void operator()(void* object) const { g_object_unref(object); }
};

std::expected<void, Fault> child(const Errand& errand)
{
    const std::unique_ptr<GAppLaunchContext, ObjectRelease> context(g_app_launch_context_new());
    if (errand.token) {
        g_app_launch_context_setenv(context.get(), "XDG_ACTIVATION_TOKEN", errand.token->c_str());
        g_app_launch_context_setenv(context.get(), "DESKTOP_STARTUP_ID", errand.token->c_str());
    }
    ErrorHandle error;
    if (g_app_info_launch_default_for_uri(errand.url.c_str(), context.get(), ErrorOut { error }) != FALSE)
        return {};
    return std::unexpected(Fault { .where = errand.url, .why = error ? error->message : "not opened", .cause = {} });
}

bool isNobodyThere(const CallFailure& failure)
{
    return failure.kind == CallFailure::Kind::notServed || failure.kind == CallFailure::Kind::left;
}

}

void LinkOpener::open(const URL& url, std::optional<std::string> activationToken)
{
    start(opened(url.text, std::move(activationToken)), [](const auto&) {}).detach();
}

Task<std::expected<void, Fault>> LinkOpener::opened(std::string url, std::optional<std::string> activationToken)
{
    const auto components = URLComponents::split(url);
    if (!components || !components->scheme || !isUTF8(url))
        co_return std::unexpected(Fault { .where = url, .why = "no URL with a scheme", .cause = {} });
    const Errand errand { std::move(url), std::move(activationToken), LinkHandler::forScheme(*components->scheme) };
    auto connection = BusConnection::connect(m_loop);
    constexpr std::array ways { &application, &serviceManager, &portal };
    for (std::size_t i = 0; connection && i < ways.size(); ++i) {
        const auto way = ways[i](errand);
        if (!way)
            continue;
        const BusCall::Target target { way->name, way->path.c_str(), way->interface, way->mayStart };
        BusCall call(*connection, target, way->method, way->arguments.get(), way->replyType, patience);
        const auto result = co_await call;
        if (result)
            co_return std::expected<void, Fault>();
        if (!isNobodyThere(result.error()))
            co_return std::unexpected(Fault { .where = errand.url, .why = result.error().fault.sentence, .cause = {} });
    }
    co_return child(errand);
}

}
