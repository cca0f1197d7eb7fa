#pragma once

#include <string_view>

/// The cues of a breath, as they are spoken.
namespace orvel::Copy::Announce {

std::string_view inhale();
std::string_view hold();
std::string_view exhale();

}
