#pragma once

#include <cstdint>
#include <expected>

#include "OrvelPlatform/Desktop/IntentsObject.h"

namespace orvel {

/// What keeps the application's intents served, as long as it lives.
class IntentServer {
public:
    /// Which connection has the application's name on the bus.
    enum class Name : std::uint8_t {
        taken, // one of our own, which takes the name
        ofTheProcess, // GLib's shared one, for an application of GLib's, which takes the name itself
    };

    IntentServer(BusConnection connection, IntentsObject intents);

private:
    BusConnection m_connection;
    IntentsObject m_intents; // goes before its connection
};

/// Serves the running application's intents to every host, at its object on the session's bus: hosts ask it before they
/// ask the extension. `perform` runs on the loop. A fault when there is no bus, or when another process has the name.
[[nodiscard]] std::expected<IntentServer, Fault> serveIntents(
    const EventLoop& loop, IntentPerformer perform, IntentServer::Name name = IntentServer::Name::taken);

}
