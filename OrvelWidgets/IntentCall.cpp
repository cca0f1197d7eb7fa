#include "OrvelWidgets/IntentCall.h"

#include <fmt/format.h>
#include <optional>
#include <utility>

#include "OrvelWidgets/Refusal.h"

namespace orvel {

namespace {

/// A parameter that may be left out.
template <typename Value>
Answer<std::optional<Value>> parameter(const IntentParameters& parameters, std::string_view name)
{
    const auto found = parameters.find(name);
    if (found == parameters.end())
        return std::nullopt;
    if (const auto* value = std::get_if<Value>(&found->second))
        return *value;
    return refusal(RequestFault::Kind::badArgument, fmt::format("The parameter \"{}\" is of a wrong type.", name));
}

Answer<IntentCall> openBreathe(const IntentParameters& parameters)
{
    auto style = parameter<std::string>(parameters, OpenBreatheIntent::styleName);
    const auto minutes = parameter<std::int64_t>(parameters, OpenBreatheIntent::minutesName);
    if (!style || !minutes)
        return std::unexpected(style ? minutes.error() : style.error());
    return OpenBreatheIntent { .style = *std::move(style), .minutes = *minutes };
}

Answer<IntentCall> focusNow(const IntentParameters& parameters)
{
    const auto value = parameter<bool>(parameters, FocusNowControlIntent::valueName);
    if (!value)
        return std::unexpected(value.error());
    if (!*value)
        return refusal(RequestFault::Kind::badArgument,
            fmt::format("The parameter \"{}\" is missing.", FocusNowControlIntent::valueName));
    return FocusNowControlIntent { .value = **value };
}

}

Answer<IntentCall> intentCall(std::string_view name, const IntentParameters& parameters)
{
    if (name == OpenBreatheIntent::name)
        return openBreathe(parameters);
    if (name == FocusNowControlIntent::name)
        return focusNow(parameters);
    return refusal(RequestFault::Kind::unknownIntent, "There is no intent", name);
}

Task<Answer<void>> performed(Answer<IntentCall> call, IntentSurroundings in)
{
    if (!call)
        co_return std::unexpected(call.error());
    auto work = std::visit([&](const auto& intent) { return intent.perform(in); }, *call);
    co_await work;
    co_return {};
}

}
