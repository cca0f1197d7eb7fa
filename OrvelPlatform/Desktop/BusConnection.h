#pragma once

#include <expected>
#include <functional>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/EventLoop.h"
#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

/// A connection of our own to the session's bus, whose messages arrive on a loop. It never ends the process, and a bus
/// that does not run is not started. The process may have others.
class BusConnection {
public:
    [[nodiscard]] static std::expected<BusConnection, Fault> connect(const EventLoop& loop);

    /// The one connection that GLib shares within the process, which an application of GLib's has.
    [[nodiscard]] static std::expected<BusConnection, Fault> shared(const EventLoop& loop);

    BusConnection(BusConnection&& other) noexcept;
    BusConnection& operator=(BusConnection&&) = delete;
    ~BusConnection();

    _GDBusConnection* get() const { return m_connection.get(); }
    _GMainContext* context() const { return m_context.get(); }
    bool isClosed() const;

    /// What is to be done on the loop when the bus goes away.
    void whenClosed(std::function<void()> what);

    /// Takes a name that nobody else has; a name that is taken is a fault.
    [[nodiscard]] std::expected<void, Fault> takeName(const char* name) const;

    /// Gives a name up. Once this returns, all that was sent to us under it has been delivered.
    [[nodiscard]] std::expected<void, Fault> giveUpName(const char* name) const;

    /// Waits until all that was sent is on its way; `settle` until the bus has acted upon it.
    void flush() const;
    void settle() const;

    /// Closes it now, after what was sent is on its way. Whoever still waits for an answer is told that we left.
    void close() const;

private:
    BusConnection(const EventLoop& loop, ConnectionHandle connection, bool isOurs);

    /// Calls a method of the bus itself that takes a name (and flags, for some) and gives a number.
    std::expected<unsigned, Fault> askTheBus(const char* method, _GVariant* arguments) const;

    ContextHandle m_context;
    ConnectionHandle m_connection;
    bool m_isOurs;
    unsigned long m_closedHandler = 0; // 0: none
};

}
