#include "OrvelPlatform/Desktop/ExtensionRunner.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <exception>
#include <fmt/format.h>
#include <optional>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/AnswerWriting.h"
#include "OrvelPlatform/Desktop/BusConnection.h"
#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/HostEnvironmentCoding.h"
#include "OrvelPlatform/Desktop/IntentsObject.h"
#include "OrvelPlatform/Desktop/ServedObject.h"

namespace orvel {

namespace {

using Kind = RequestFault::Kind;

template <typename T>
Answer<Reply> replyOfAnswer(const Answer<T>& answer)
{
    return answer ? replyOf(*answer) : std::unexpected(answer.error());
}

Answer<Reply> members(WidgetExtension& extension, const MethodCall& call)
{
    const auto environment = hostEnvironment(call.argument(0).get());
    return environment ? replyOfAnswer(extension.members(*environment)) : std::unexpected(environment.error());
}

/// A question about a kind: its first argument, with the environment as the second.
template <typename T>
Answer<Reply> ofKind(WidgetExtension& extension, const MethodCall& call,
    Answer<T> (WidgetExtension::*ask)(std::string_view kind, const HostEnvironment& environment))
{
    const auto environment = hostEnvironment(call.argument(1).get());
    if (!environment)
        return std::unexpected(environment.error());
    return replyOfAnswer((extension.*ask)(text(call.argument(0).get()).value_or(""), *environment));
}

Answer<Reply> render(WidgetExtension& extension, const MethodCall& call)
{
    const auto environment = hostEnvironment(call.argument(3).get());
    if (!environment)
        return std::unexpected(environment.error());
    const auto instant = date(wholeNumber(call.argument(1).get()).value_or(0));
    if (!instant)
        return std::unexpected(requestFault(Kind::badArgument, "\"date\" has to lie in the years 1 to 9999."));
    ExtensionEntry entry { .date = *instant, .moment = bytes(call.argument(2).get()).value_or("") };
    return replyOfAnswer(extension.render(text(call.argument(0).get()).value_or(""), entry, *environment));
}

struct Method {
    std::string_view name;
    Answer<Reply> (*answer)(WidgetExtension& extension, const MethodCall& call);
};

constexpr std::array<Method, 6> methods { {
    { "Members", &members },
    { "Placeholder",
        [](auto& extension, const auto& call) { return ofKind(extension, call, &WidgetExtension::placeholder); } },
    { "Snapshot",
        [](auto& extension, const auto& call) { return ofKind(extension, call, &WidgetExtension::snapshot); } },
    { "Timeline",
        [](auto& extension, const auto& call) { return ofKind(extension, call, &WidgetExtension::timeline); } },
    { "Render", &render },
    { "ControlValue",
        [](auto& extension, const auto& call) { return ofKind(extension, call, &WidgetExtension::controlValue); } },
} };

class ExtensionRunner {
public:
    ExtensionRunner(EventLoop& loop, WidgetExtension& extension, const RunnerOptions& options, BusConnection connection)
        : m_loop(loop), m_extension(extension), m_options(options), m_connection(std::move(connection))
    {
    }

    /// Until the process is to leave. A fault when it cannot begin.
    std::expected<void, Fault> run();

private:
    std::expected<void, Fault> begin();
    void leave();
    void receive(MethodCall call);
    Answer<Reply> answer(const MethodCall& call);
    void prepareForPictures();
    void waitForRequests();

    EventLoop& m_loop;
    WidgetExtension& m_extension;
    RunnerOptions m_options;
    BusConnection m_connection;
    std::optional<ServedObject> m_widgets;
    std::optional<IntentsObject> m_intents;
    SourceHandle m_idleTimer;
    SourceHandle m_preparation;
    bool m_isPrepared = false;
};

std::expected<void, Fault> ExtensionRunner::run()
{
    if (auto begun = begin(); !begun)
        return begun;
    const auto quit = [this] { m_loop.quit(); };
    const auto whenTerminated = m_loop.onSignal(SIGTERM, quit);
    const auto whenInterrupted = m_loop.onSignal(SIGINT, quit);
    m_connection.whenClosed(quit);
    waitForRequests();
    m_loop.run();
    leave();
    return {};
}

std::expected<void, Fault> ExtensionRunner::begin()
{
    auto widgets = ServedObject::serve(m_connection, BusPath::extension, BusInterface::widgetExtension,
        [this](MethodCall call) { receive(std::move(call)); });
    if (!widgets)
        return std::unexpected(widgets.error());
    m_widgets.emplace(*std::move(widgets));
    auto intents = IntentsObject::serve(
        m_connection, BusPath::extension,
        [this](std::string intent, IntentParameters parameters, IntentPlatform platform) {
            return m_extension.perform(std::move(intent), std::move(parameters), std::move(platform));
        },
        [this] { waitForRequests(); });
    if (!intents)
        return std::unexpected(intents.error());
    m_intents.emplace(*std::move(intents));
    return m_connection.takeName(BusName::extension);
}

/// The name goes first: the bus starts another process for whoever asks from then on, and what was sent to this one is
/// here to be answered. Leaving at once would lose it.
void ExtensionRunner::leave()
{
    m_preparation.reset();
    if (m_connection.isClosed() || !m_connection.giveUpName(BusName::extension))
        return;
    bool isOver = false;
    const auto farewell = m_loop.after(m_options.farewell, [&] { isOver = true; });
    while (!isOver || m_intents->isPerforming())
        m_loop.turn(true);
    while (m_loop.turn(false)) { }
    // Before the objects go: a call that comes too late is to be lost and asked again, not refused.
    m_connection.close();
}

void ExtensionRunner::receive(MethodCall call)
{
    if (call.method() == "Render")
        prepareForPictures();
    const auto isTimeline = call.method() == "Timeline";
    call.answer(answer(call));
    if (isTimeline && !m_isPrepared)
        m_preparation = m_loop.whenIdle([this] { prepareForPictures(); });
    waitForRequests();
}

Answer<Reply> ExtensionRunner::answer(const MethodCall& call)
{
    const auto* method = std::ranges::find(methods, call.method(), &Method::name);
    if (method == methods.end())
        return std::unexpected(requestFault(Kind::unavailable, "This method is not served."));
    try {
        return method->answer(m_extension, call);
    } catch (const std::exception& exception) {
        return std::unexpected(
            requestFault(Kind::unavailable, fmt::format("The extension failed: {}.", exception.what())));
    }
}

void ExtensionRunner::prepareForPictures()
{
    if (!std::exchange(m_isPrepared, true))
        m_extension.prepareForPictures();
}

/// From now on. While something is being performed the time does not count: it begins anew with the answer.
void ExtensionRunner::waitForRequests()
{
    m_idleTimer = m_loop.after(m_options.idleTime, [this] {
        if (!m_intents->isPerforming())
            m_loop.quit();
    });
}

int failure(const Fault& fault)
{
    fmt::print(stderr, "{}\n", fault.text());
    return 1;
}

}

int runExtension(EventLoop& loop, WidgetExtension& extension, const RunnerOptions& options)
{
    auto connection = BusConnection::connect(loop);
    if (!connection)
        return failure(connection.error());
    ExtensionRunner runner(loop, extension, options, *std::move(connection));
    const auto done = runner.run();
    return done ? 0 : failure(done.error());
}

}
