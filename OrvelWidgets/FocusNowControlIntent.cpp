#include "OrvelWidgets/FocusNowControlIntent.h"

#include <utility>

#include "OrvelCopy/Copy.h"
#include "OrvelCopy/Intents.h"
#include "OrvelShared/IntentHosting.h"

namespace orvel {

namespace {

OrvelLink link(bool value)
{
    if (value)
        return OrvelLink::Focus {};
    return OrvelLink::Today {};
}

/// There is always something to start, but not always something to end.
bool hasWork(bool value)
{
    const auto host = IntentHosting::host;
    return value || (host && host->runningFocusName());
}

Task<void> performed(FocusNowControlIntent intent, IntentSurroundings in)
{
    auto waiting = IntentHosting::current(longestWaitForHost, in.clock, in.cancellation);
    const auto found = co_await waiting;
    if (!found) {
        in.open(link(intent.value));
        co_return;
    }
    if (!hasWork(intent.value))
        co_return;
    auto coming = in.foreground.request();
    [[maybe_unused]] const auto declined = co_await coming;
    // The application may have registered another host, or none, while the user was asked.
    const auto host = IntentHosting::host;
    if (!host)
        co_return;
    if (intent.value)
        host->startFocus();
    else
        host->endFocus();
}

}

IntentMetadata FocusNowControlIntent::metadata()
{
    return {
        .name = name,
        .title = std::string(Copy::Intents::focusNow()),
        .parameters = { {
            .name = valueName,
            .title = std::string(Copy::focusName()),
            .type = IntentParameter::Type::truth,
            .editing = IntentParameter::Editing::toggle,
            .isOptional = false,
        } },
        .supportedModes = { IntentMode::background, IntentMode::foregroundDynamic },
    };
}

Task<void> FocusNowControlIntent::perform(IntentSurroundings in) const
{
    return performed(*this, std::move(in));
}

}
