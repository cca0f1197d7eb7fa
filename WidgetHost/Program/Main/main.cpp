#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>

#include "OrvelPlatform/Base/Match.h"
#include "WidgetHost/Program/HostListing.h"
#include "WidgetHost/Program/Main/HostApplication.h"
#include "WidgetHost/Program/SingleInstance.h"

#include <csignal>
#include <gtkmm.h>

namespace {

using namespace orvel;

/// How a call ends, as its exit status.
enum class Exit : int { done = 0, no = 1, wrongCall = 2 };

Exit fail(const std::string& why, Exit exit = Exit::no)
{
    fmt::print(stderr, "orvel-widget-host: {}\n", why);
    return exit;
}

Exit print(const std::string& text)
{
    const auto isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    return isWritten ? Exit::done : fail("standard output cannot be written");
}

Answer<std::vector<ExtensionMember>> membersOfExtension(EventLoop& loop)
{
    WidgetRequester requester(loop);
    std::optional<Answer<std::vector<ExtensionMember>>> answer;
    const auto home = Homeland::current();
    const auto asked =
        start(requester.members({ .locale = home.locale, .language = home.language }), [&](auto outcome) {
            const RequestFault brokenOff { RequestFault::Kind::unavailable, "the request broke off" };
            answer = outcome ? *std::move(outcome) : std::unexpected(brokenOff);
        });
    while (!answer)
        loop.turn(true);
    return *std::move(answer);
}

Exit list(EventLoop& loop)
{
    const auto reading = HostStateFile().read();
    if (reading.warning)
        fail(*reading.warning);
    const auto members = membersOfExtension(loop);
    const auto exit = print(hostListing(reading.state, members ? std::optional(*members) : std::nullopt));
    return members ? exit : fail(members.error().sentence);
}

Exit quit(const SingleInstance& instance, EventLoop& loop)
{
    if (!instance.isElsewhere())
        return fail("no widget host runs");
    const auto end = instance.askToQuit(loop);
    return end ? Exit::done : fail(end.error().text());
}

/// The token of the click that started this process, which no child of it shall use again.
std::string activationToken()
{
    for (const auto* name : { "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID" }) {
        if (const auto* token = std::getenv(name); token && *token)
            return token;
    }
    return {};
}

Exit askTheOther(const SingleInstance& instance, const HostCall::Task& task)
{
    if (const auto* widget = std::get_if<HostCall::Add>(&task))
        instance.askToAdd(*widget);
    else if (std::holds_alternative<HostCall::ShowControls>(task))
        instance.askForControls(activationToken());
    else if (const auto* show = std::get_if<HostCall::Show>(&task); !show || !show->isInBackground)
        instance.askForGallery(activationToken());
    return Exit::done;
}

void begin(HostApplication& host, const HostCall::Task& task)
{
    std::visit(Match {
                   [&](const HostCall::Show& show) {
                       if (!show.isInBackground && host.desk().state().widgets.empty())
                           host.raiseGallery(activationToken());
                   },
                   [&](const HostCall::Add& widget) { host.add(widget); },
                   [&](HostCall::ShowGallery) { host.raiseGallery(activationToken()); },
                   [&](HostCall::ShowControls) { host.raiseControls(activationToken()); },
                   [](HostCall::List) {},
                   [](HostCall::Quit) {},
               },
        task);
}

/// False without a display. No window here draws with GL, whose libraries would take more memory than all the rest.
bool startToolkit()
{
    const auto hasOwn = g_getenv("GDK_GL") != nullptr;
    g_setenv("GDK_GL", "disable", false);
    const auto hasDisplay = gtk_init_check(nullptr, nullptr);
    if (!hasOwn)
        g_unsetenv("GDK_GL"); // applications that we start may draw as they like
    if (hasDisplay)
        Gtk::Main::init_gtkmm_internals();
    return hasDisplay;
}

Exit run(EventLoop& loop, SingleInstance& instance, const HostCall::Task& task)
{
    if (!startToolkit())
        return fail("there is no display to show widgets on; DISPLAY or WAYLAND_DISPLAY names one");
    const auto end = [&] { loop.quit(); };
    HostApplication host(loop, end);
    if (const auto warning = host.desk().warning())
        fail(*warning);
    instance.listen({ .gallery = [&](const std::string& token) { host.raiseGallery(token); },
        .controls = [&](const std::string& token) { host.raiseControls(token); },
        .add = [&](const HostCall::Add& widget) { host.add(widget); },
        .quit = end });
    const auto terminated = loop.onSignal(SIGTERM, end);
    const auto interrupted = loop.onSignal(SIGINT, end);
    begin(host, task);
    loop.run();
    instance.listen({});
    return Exit::done;
}

Exit perform(const HostCall::Task& task)
{
    auto loop = EventLoop::ofTheProgram();
    if (std::holds_alternative<HostCall::List>(task))
        return list(loop);
    auto instance = SingleInstance::find();
    if (!instance)
        return fail(instance.error().text());
    if (std::holds_alternative<HostCall::Quit>(task))
        return quit(*instance, loop);
    if (const auto* widget = std::get_if<HostCall::Add>(&task)) {
        const auto members = membersOfExtension(loop);
        if (!members)
            return fail(members.error().sentence);
        if (const auto why = whyNotAdded(*widget, *members))
            return fail(*why);
    }
    return instance->isElsewhere() ? askTheOther(*instance, task) : run(loop, *instance, task);
}

Exit hostProgram(int argc, const char* const* argv)
{
    const auto call = hostCall(argc, argv);
    if (call)
        return perform(call->task);
    return call.error().isWrong ? fail(call.error().text, Exit::wrongCall) : print(call.error().text);
}

}

int main(int argc, char** argv)
{
    return static_cast<int>(hostProgram(argc, argv));
}
