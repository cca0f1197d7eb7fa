#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// No answer, and why.
std::unexpected<RequestFault> refusal(RequestFault::Kind kind, std::string sentence);

/// The same about a name from outside, of which the sentence takes the beginning: `about` and then the name in quotes.
std::unexpected<RequestFault> refusal(RequestFault::Kind kind, std::string_view about, std::string_view name);

}
