#include "OrvelPlatform/Desktop/IntentServer.h"

#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

IntentServer::IntentServer(BusConnection connection, IntentsObject intents)
    : m_connection(std::move(connection)), m_intents(std::move(intents))
{
}

std::expected<IntentServer, Fault> serveIntents(const EventLoop& loop, IntentPerformer perform, IntentServer::Name name)
{
    const auto isTaken = name == IntentServer::Name::taken;
    auto connection = isTaken ? BusConnection::connect(loop) : BusConnection::shared(loop);
    if (!connection)
        return std::unexpected(connection.error());
    auto intents = IntentsObject::serve(*connection, BusPath::application, std::move(perform));
    if (!intents)
        return std::unexpected(intents.error());
    if (isTaken) {
        if (auto taken = connection->takeName(BusName::application); !taken)
            return std::unexpected(taken.error());
    }
    return IntentServer(*std::move(connection), *std::move(intents));
}

}
