#include "OrvelPlatform/Desktop/BusCall.h"

#include <algorithm>
#include <array>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <optional>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

namespace {

using Kind = CallFailure::Kind;

constexpr std::array<std::string_view, 5> notServed {
    "org.freedesktop.DBus.Error.ServiceUnknown",
    "org.freedesktop.DBus.Error.NameHasNoOwner",
    "org.freedesktop.DBus.Error.UnknownMethod",
    "org.freedesktop.DBus.Error.UnknownObject",
    "org.freedesktop.DBus.Error.UnknownInterface",
};

constexpr std::array<std::string_view, 3> wrongArguments {
    "org.freedesktop.DBus.Error.InvalidArgs",
    "org.freedesktop.DBus.Error.InvalidSignature",
    "org.freedesktop.DBus.Error.LimitsExceeded",
};

bool contains(auto&& names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

/// What the callee, or the bus in its place, answered.
CallFailure remoteFailure(std::string_view name, std::string_view sentence)
{
    const auto failure = [&](Kind kind, RequestFault::Kind fault) {
        return CallFailure { .kind = kind, .fault = requestFault(fault, sentence) };
    };
    if (const auto kind = kindOfError(name))
        return failure(Kind::refused, *kind);
    if (contains(notServed, name))
        return failure(Kind::notServed, RequestFault::Kind::unavailable);
    if (contains(wrongArguments, name))
        return failure(Kind::refused, RequestFault::Kind::badArgument);
    const auto hasLeft =
        name == "org.freedesktop.DBus.Error.NoReply" || name.starts_with("org.freedesktop.DBus.Error.Spawn.");
    return failure(hasLeft ? Kind::left : Kind::refused, RequestFault::Kind::unavailable);
}

CallFailure failureOf(_GError* error)
{
    const GlibText name(g_dbus_error_get_remote_error(error));
    if (name) {
        g_dbus_error_strip_remote_error(error);
        return remoteFailure(name.get(), error->message);
    }
    if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return { .kind = Kind::late, .fault = requestFault(RequestFault::Kind::late, error->message) };
    if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_INVALID_ARGUMENT))
        return { .kind = Kind::refused, .fault = requestFault(RequestFault::Kind::badReply, error->message) };
    return { .kind = Kind::left, .fault = requestFault(RequestFault::Kind::unavailable, error->message) };
}

}

struct BusCall::State {
    std::coroutine_handle<> waiting;
    std::optional<Result> result;
    CancellableHandle cancellable { g_cancellable_new() };
    bool isOver = false;

    static void finish(_GObject* connection, _GAsyncResult* outcome, void* data);
};

void BusCall::State::finish(_GObject* connection, _GAsyncResult* outcome, void* data)
{
    const std::unique_ptr<std::shared_ptr<State>> taken(static_cast<std::shared_ptr<State>*>(data));
    const auto state = *taken;
    state->isOver = true;
    ErrorHandle error;
    _GUnixFDList* files = nullptr;
    VariantHandle values(g_dbus_connection_call_with_unix_fd_list_finish(
        G_DBUS_CONNECTION(connection), &files, outcome, ErrorOut { error }));
    ReceivedReply reply { .values = std::move(values), .files = FDListHandle(files) };
    state->result = reply.values ? Result(std::move(reply)) : Result(std::unexpected(failureOf(error.get())));
    if (state->waiting)
        state->waiting.resume();
}

BusCall::BusCall(const BusConnection& connection, const Target& target, const char* method, _GVariant* arguments,
    const char* replyType, std::chrono::milliseconds deadline)
    : m_state(std::make_shared<State>())
{
    const LoopScope scope(connection.context());
    g_dbus_connection_call_with_unix_fd_list(connection.get(), target.name.c_str(), target.path, target.interface,
        method, arguments, G_VARIANT_TYPE(replyType),
        target.mayStart ? G_DBUS_CALL_FLAGS_NONE : G_DBUS_CALL_FLAGS_NO_AUTO_START, static_cast<int>(deadline.count()),
        nullptr, m_state->cancellable.get(), &State::finish,
        std::make_unique<std::shared_ptr<State>>(m_state).release());
}

BusCall::~BusCall()
{
    m_state->waiting = nullptr;
    if (!m_state->isOver)
        g_cancellable_cancel(m_state->cancellable.get());
}

bool BusCall::await_ready() const
{
    return m_state->result.has_value();
}

void BusCall::await_suspend(std::coroutine_handle<> waiting)
{
    m_state->waiting = waiting;
}

BusCall::Result BusCall::await_resume()
{
    return *std::exchange(m_state->result, std::nullopt);
}

}
