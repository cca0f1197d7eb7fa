#include "OrvelWidgets/OpenBreatheIntent.h"

#include <utility>

#include "OrvelCopy/Intents.h"
#include "OrvelCopy/Widgets.h"
#include "OrvelShared/IntentHosting.h"

namespace orvel {

namespace {

Task<void> performed(OpenBreatheIntent intent, IntentSurroundings in)
{
    auto waiting = IntentHosting::current(longestWaitForHost, in.clock, in.cancellation);
    const auto host = co_await waiting;
    if (host)
        host->openBreathe(intent.style, intent.minutes);
    else
        in.open(OrvelLink::Breathe { .style = intent.style, .minutes = intent.minutes });
}

}

IntentMetadata OpenBreatheIntent::metadata()
{
    return {
        .name = name,
        .title = std::string(Copy::Widgets::breatheName()),
        .parameters = {
            {
                .name = styleName,
                .title = std::string(Copy::Intents::style()),
                .type = IntentParameter::Type::text,
                .editing = IntentParameter::Editing::field,
                .isOptional = true,
            },
            {
                .name = minutesName,
                .title = std::string(Copy::Intents::minutes()),
                .type = IntentParameter::Type::integer,
                .editing = IntentParameter::Editing::stepper,
                .isOptional = true,
            },
        },
        .supportedModes = { IntentMode::foregroundImmediate },
    };
}

Task<void> OpenBreatheIntent::perform(IntentSurroundings in) const
{
    return performed(*this, std::move(in));
}

}
