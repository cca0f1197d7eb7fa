#pragma once

#include <array>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/ControlContent.h"

namespace orvel {

/// A picture of a control as a desktop would show it, for previews and galleries. It follows the colour scheme that it
/// is drawn in.
struct ControlStandIn {
    enum class Size { small, medium, bar };

    ControlContent content;
    Size size;

    View body(const Environment& environment) const;
};

template <>
inline constexpr std::array<std::string_view, 3> rawValues<ControlStandIn::Size> { "small", "medium", "bar" };

}
