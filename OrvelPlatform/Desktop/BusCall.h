#pragma once

#include <chrono>
#include <coroutine>
#include <cstdint>
#include <expected>
#include <memory>
#include <string>

#include "OrvelPlatform/Desktop/AnswerReading.h"
#include "OrvelPlatform/Desktop/BusConnection.h"

namespace orvel {

/// Why a call has no reply.
struct CallFailure {
    enum class Kind : std::uint8_t {
        refused, // the callee's own error
        notServed, // no such method, object or owner: nothing was done
        left, // the callee went, or could not start; whether it did anything is unknown
        late,
    };

    Kind kind;
    RequestFault fault;
};

/// One method call, to be awaited once on the connection's loop:
///
///     BusCall call(connection, target, "Timeline", arguments, "(a(xu)aayx)", deadline);
///     auto result = co_await call;
///
/// Destroyed before the reply, it takes no notice of it.
class BusCall {
public:
    struct Target {
        std::string name;
        const char* path;
        const char* interface;
        bool mayStart; // the bus starts who has the name
    };
    using Result = std::expected<ReceivedReply, CallFailure>;

    /// `arguments` is a tuple (null: no arguments); `replyType` the tuple's type of the reply.
    BusCall(const BusConnection& connection, const Target& target, const char* method, _GVariant* arguments,
        const char* replyType, std::chrono::milliseconds deadline);
    BusCall(const BusCall&) = delete;
    BusCall& operator=(const BusCall&) = delete;
    ~BusCall();

    bool await_ready() const;
    void await_suspend(std::coroutine_handle<> waiting);
    Result await_resume();

private:
    struct State;
    std::shared_ptr<State> m_state;
};

}
