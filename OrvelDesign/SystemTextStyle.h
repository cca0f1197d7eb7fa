#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The system's text styles, whose scaling by the user the roles of the interface follow.
enum class SystemTextStyle {
    largeTitle,
    title1,
    title2,
    title3,
    headline,
    body,
    callout,
    subheadline,
    footnote,
    caption1,
    caption2,
};

template <>
inline constexpr std::array<std::string_view, 11> rawValues<SystemTextStyle> {
    "largeTitle",
    "title1",
    "title2",
    "title3",
    "headline",
    "body",
    "callout",
    "subheadline",
    "footnote",
    "caption1",
    "caption2",
};

/// The size in points that a style has at the user's default setting.
double referenceSize(SystemTextStyle style);

/// The size in points that the user prefers for a style now: what the process's function says, and the
/// reference size where there is none or its answer is no size.
double preferredSize(SystemTextStyle style);

/// The size in points of a style; called from any thread.
using PreferredSizes = std::function<double(SystemTextStyle)>;

/// Sets what `preferredSize` asks from now on. A process that knows its desktop sets reference sizes times the
/// desktop's text scale. An empty function puts the reference sizes back.
void setPreferredSizes(PreferredSizes sizes);

}
