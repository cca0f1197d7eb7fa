#pragma once

#include <optional>
#include <string>

#include "OrvelDesign/BiggerText.h"

namespace orvel {

/// The metrics of every type role at a bigger-text step and a system text scale (absent: what the process prefers), as
/// {"bigger", "scale", "roles": [{"role", "family", "size", …}]}.
std::string metricsAsJson(BiggerText bigger, std::optional<double> systemScale);

/// The same as a table for a person, one role a line under a heading.
std::string metricsAsTable(BiggerText bigger, std::optional<double> systemScale);

}
