#pragma once

#include <cstdint>
#include <string>

namespace orvel {

/// What lets the application that is opened next come to the front, made for the event that the user caused at `time`.
/// Empty where the desktop has no such thing.
std::string activationToken(std::uint32_t time);

}
