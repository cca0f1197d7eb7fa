#include "OrvelWidgets/Refusal.h"

#include <fmt/format.h>
#include <utility>

#include "OrvelPlatform/Base/UTF8.h"

namespace orvel {

std::unexpected<RequestFault> refusal(RequestFault::Kind kind, std::string sentence)
{
    return std::unexpected(RequestFault { .kind = kind, .sentence = std::move(sentence) });
}

std::unexpected<RequestFault> refusal(RequestFault::Kind kind, std::string_view about, std::string_view name)
{
    constexpr std::size_t longest = 100;
    return refusal(kind, fmt::format("{} \"{}\".", about, cutAtCharacter(name, longest)));
}

}
