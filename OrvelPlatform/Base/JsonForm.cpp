#include "OrvelPlatform/Base/JsonForm.h"

#include <fmt/format.h>

namespace orvel {

std::string jsonPath(std::string_view key, std::string_view rest)
{
    const auto needsDot = !rest.empty() && rest.front() != '[';
    return fmt::format("{}{}{}", key, needsDot ? "." : "", rest);
}

std::string jsonPath(std::size_t index, std::string_view rest)
{
    return jsonPath(fmt::format("[{}]", index), rest);
}

}
