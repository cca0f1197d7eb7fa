#pragma once

#include <optional>

#include "OrvelDesign/MacTypeRole.h"
#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// The font of metrics, with another weight where one is given. Lines are as high as the metrics say.
///
/// PORT: the platform's fonts and those of views are one type here.
TextStyle font(const TypeMetrics& metrics, std::optional<int> weight = std::nullopt);

/// The font of a text style that nothing scales.
TextStyle font(const TypeSpecValue& spec);

/// The font of a role as an environment has it: with its bigger text and its system text scale.
struct OrvelFont {
    MacTypeRole role;
    std::optional<int> weight = std::nullopt; // absent: the role's own

    TextStyle style(const Environment& environment) const;
};

}
