#include "OrvelPlatform/Desktop/WidgetRequester.h"

#include <algorithm>
#include <gio/gio.h>

#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/HostEnvironmentCoding.h"

namespace orvel {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

VariantHandle sunk(_GVariant* tuple)
{
    return VariantHandle(g_variant_ref_sink(tuple));
}

_GVariant* platformValue(const IntentPlatform& platform)
{
    DictionaryWriter writer;
    writer.add("activation-token", platform.activationToken);
    return writer.end();
}

BusCall::Target extension(const char* interface)
{
    return { .name = BusName::extension, .path = BusPath::extension, .interface = interface, .mayStart = true };
}

Answer<void> outcome(const BusCall::Result& result)
{
    return result ? Answer<void>() : std::unexpected(result.error().fault);
}

bool hasFailed(const BusCall::Result& result, CallFailure::Kind kind)
{
    return !result && result.error().kind == kind;
}

Milliseconds until(Clock::time_point end)
{
    return std::max(Milliseconds { 1 }, std::chrono::ceil<Milliseconds>(end - Clock::now()));
}

}

_GVariant* EnvironmentValues::of(const HostEnvironment& environment)
{
    const auto found = std::ranges::find(m_kept, environment, &Kept::environment);
    if (found != m_kept.end())
        return found->value.get();
    if (m_kept.size() == most)
        m_kept.erase(m_kept.begin());
    return m_kept.emplace_back(environment, sunk(environmentValue(environment))).value.get();
}

WidgetRequester::WidgetRequester(const EventLoop& loop, const RequestDeadlines& deadlines)
    : m_loop(loop), m_deadlines(deadlines)
{
}

Task<Answer<std::vector<ExtensionMember>>> WidgetRequester::members(HostEnvironment environment)
{
    auto arguments = sunk(g_variant_new("(@a{sv})", m_environments.of(environment)));
    return ask<std::vector<ExtensionMember>>("Members", std::move(arguments), "(aa{sv})");
}

Task<Answer<ExtensionEntry>> WidgetRequester::placeholder(std::string kind, HostEnvironment environment)
{
    return ask<ExtensionEntry>("Placeholder", ofKind(kind, environment), "(xay)");
}

Task<Answer<ExtensionEntry>> WidgetRequester::snapshot(std::string kind, HostEnvironment environment)
{
    return ask<ExtensionEntry>("Snapshot", ofKind(kind, environment), "(xay)");
}

Task<Answer<ExtensionTimeline>> WidgetRequester::timeline(std::string kind, HostEnvironment environment)
{
    return ask<ExtensionTimeline>("Timeline", ofKind(kind, environment), "(a(xu)aayx)");
}

Task<Answer<HostPicture>> WidgetRequester::render(std::string kind, ExtensionEntry entry, HostEnvironment environment)
{
    auto arguments = sunk(g_variant_new("(sx@ay@a{sv})", boundedText(kind).c_str(), microseconds(entry.date),
        bytesValue(entry.moment), m_environments.of(environment)));
    return ask<HostPicture>("Render", std::move(arguments), "(a{sv})");
}

Task<Answer<ControlValue>> WidgetRequester::controlValue(std::string kind, HostEnvironment environment)
{
    return ask<ControlValue>("ControlValue", ofKind(kind, environment), "(a{sv})");
}

Task<Answer<void>> WidgetRequester::perform(std::string intent, IntentParameters parameters, IntentPlatform platform)
{
    auto arguments = sunk(g_variant_new(
        "(s@a{sv}@a{sv})", boundedText(intent).c_str(), parametersValue(parameters), platformValue(platform)));
    const auto end = Clock::now() + m_deadlines.performed;
    auto asking = ownerOfApplication();
    const auto application = co_await asking;
    if (application) {
        BusCall::Target target {
            .name = *application, .path = BusPath::application, .interface = BusInterface::intents, .mayStart = false
        };
        auto calling =
            call(std::move(target), "Perform", VariantHandle(g_variant_ref(arguments.get())), "()", until(end));
        const auto result = co_await calling;
        if (!hasFailed(result, CallFailure::Kind::notServed))
            co_return outcome(result);
    }
    auto target = extension(BusInterface::intents);
    auto calling = call(std::move(target), "Perform", std::move(arguments), "()", until(end));
    const auto result = co_await calling;
    co_return outcome(result);
}

VariantHandle WidgetRequester::ofKind(const std::string& kind, const HostEnvironment& environment)
{
    return sunk(g_variant_new("(s@a{sv})", boundedText(kind).c_str(), m_environments.of(environment)));
}

template <typename T>
Task<Answer<T>> WidgetRequester::ask(const char* method, VariantHandle arguments, const char* replyType)
{
    const auto end = Clock::now() + m_deadlines.answer;
    auto target = extension(BusInterface::widgetExtension);
    auto calling = call(target, method, VariantHandle(g_variant_ref(arguments.get())), replyType, until(end));
    auto result = co_await calling;
    if (hasFailed(result, CallFailure::Kind::left)) {
        auto again = call(target, method, std::move(arguments), replyType, until(end));
        result = co_await again;
    }
    if (!result)
        co_return std::unexpected(result.error().fault);
    co_return answerFrom<T>(*result);
}

Task<BusCall::Result> WidgetRequester::call(
    BusCall::Target target, const char* method, VariantHandle arguments, const char* replyType, Milliseconds deadline)
{
    if (auto connected = connect(); !connected)
        co_return std::unexpected(CallFailure { .kind = CallFailure::Kind::refused, .fault = connected.error() });
    BusCall pending(*m_connection, target, method, arguments.get(), replyType, deadline);
    auto result = co_await pending;
    co_return result;
}

Task<std::optional<std::string>> WidgetRequester::ownerOfApplication()
{
    const BusCall::Target bus { .name = "org.freedesktop.DBus",
        .path = "/org/freedesktop/DBus",
        .interface = "org.freedesktop.DBus",
        .mayStart = false };
    auto question = sunk(g_variant_new("(s)", BusName::application));
    auto calling = call(bus, "GetNameOwner", std::move(question), "(s)", m_deadlines.answer);
    const auto result = co_await calling;
    if (!result)
        co_return std::nullopt;
    const VariantHandle owner(g_variant_get_child_value(result->values.get(), 0));
    co_return text(owner.get());
}

std::expected<void, RequestFault> WidgetRequester::connect()
{
    if (m_connection && !m_connection->isClosed())
        return {};
    m_connection.reset();
    auto connection = BusConnection::connect(m_loop);
    if (!connection)
        return std::unexpected(requestFault(RequestFault::Kind::unavailable, connection.error().text()));
    m_connection.emplace(*std::move(connection));
    return {};
}

}
