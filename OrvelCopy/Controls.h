#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What the system controls for a breath and for a Focus show and speak.
namespace orvel::Copy::Controls {

std::string_view breatheNow();
std::string_view focusNow();
std::string_view breatheDescription();
std::string_view focusDescription();
/// "off", as it is spoken
std::string_view focusOffSpoken();

/// "Off · 25 min"
std::string focusOff(std::int64_t minutes);
/// "on, 25 minutes left", as it is spoken
std::string focusOnSpoken(std::int64_t minutes);

}
