#pragma once

#include <string_view>

/// The names of intents and of what they take, where a desktop offers them by name.
namespace orvel::Copy::Intents {

/// "Focus Now", a title and so in capitals
std::string_view focusNow();
std::string_view style();
std::string_view minutes();

}
