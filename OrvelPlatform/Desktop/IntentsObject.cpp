#include "OrvelPlatform/Desktop/IntentsObject.h"

#include <exception>
#include <fmt/format.h>
#include <set>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"

namespace orvel {

struct IntentsObject::State {
    using Waiting = std::pair<std::string, std::string>; // who waits for which intent

    IntentPerformer performer;
    std::function<void()> whenDone;
    std::set<Waiting> waiting;
};

namespace {

Answer<IntentPlatform> platformFrom(_GVariant* dictionary)
{
    const auto token = lookUp(dictionary, "activation-token");
    if (!token)
        return IntentPlatform {};
    auto read = text(token.get());
    if (!read || read->size() > BusBound::text)
        return std::unexpected(requestFault(RequestFault::Kind::badArgument, "\"activation-token\" has to be a text."));
    return IntentPlatform { .activationToken = std::move(read) };
}

Answer<void> answerOf(TaskOutcome<Answer<void>> outcome)
try {
    if (!outcome)
        std::rethrow_exception(outcome.error());
    return *std::move(outcome);
} catch (const std::exception& exception) {
    return std::unexpected(requestFault(RequestFault::Kind::unavailable, exception.what()));
} catch (...) {
    return std::unexpected(requestFault(RequestFault::Kind::unavailable, "The intent failed."));
}

template <typename State>
void receive(const std::shared_ptr<State>& state, MethodCall call)
{
    auto intent = text(call.argument(0).get()).value_or("");
    auto parameters = intentParameters(call.argument(1).get());
    auto platform = platformFrom(call.argument(2).get());
    const auto refuse = [&](RequestFault fault) {
        call.answer(Answer<void>(std::unexpected(std::move(fault))));
        if (state->whenDone)
            state->whenDone();
    };
    if (!parameters || !platform)
        return refuse(parameters ? platform.error() : parameters.error());
    typename State::Waiting waiting(call.sender(), intent);
    if (!state->waiting.insert(waiting).second)
        return refuse(requestFault(
            RequestFault::Kind::busy, fmt::format("\"{}\" is still being performed.", boundedText(intent))));
    const auto shared = std::make_shared<MethodCall>(std::move(call)); // a completion can be copied
    auto task = state->performer(std::move(intent), *std::move(parameters), *std::move(platform));
    start(std::move(task), [state, waiting, shared](TaskOutcome<Answer<void>> outcome) {
        state->waiting.erase(waiting);
        shared->answer(answerOf(std::move(outcome)));
        if (state->whenDone)
            state->whenDone();
    }).detach();
}

}

std::expected<IntentsObject, Fault> IntentsObject::serve(
    const BusConnection& connection, const char* path, IntentPerformer performer, std::function<void()> whenDone)
{
    auto state = std::make_shared<State>(
        State { .performer = std::move(performer), .whenDone = std::move(whenDone), .waiting = {} });
    auto object = ServedObject::serve(
        connection, path, BusInterface::intents, [state](MethodCall call) { receive(state, std::move(call)); });
    if (!object)
        return std::unexpected(object.error());
    return IntentsObject(std::move(state), *std::move(object));
}

IntentsObject::IntentsObject(std::shared_ptr<State> state, ServedObject object)
    : m_state(std::move(state)), m_object(std::move(object))
{
}

IntentsObject::~IntentsObject()
{
    if (m_state)
        m_state->whenDone = {};
}

bool IntentsObject::isPerforming() const
{
    return !m_state->waiting.empty();
}

}
