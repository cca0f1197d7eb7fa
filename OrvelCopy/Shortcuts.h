#pragma once

#include <string>
#include <string_view>

/// Answers to requests that are made outside the application, and their refusals.
namespace orvel::Copy::Shortcuts {

/// Where a request came from; a refusal names it.
enum class Surface {
    shortcut,
    controlCenter,
};

/// "Deep work is Firm until 12:00, so a shortcut can’t turn it off. …", and the way out that a Firm Block has
std::string firmRefusal(std::string_view name, std::string_view until, Surface from);
/// "Deep work is in Ultra Hard mode until 12:00, so a shortcut can’t turn it off. …", and that there is no way out
std::string ultraHardRefusal(std::string_view name, std::string_view until, Surface from);

}
