#pragma once

#include <string_view>

#include "OrvelWidgetsUI/WidgetSize.h"

/// The sizes in which desktops offer widgets, by name.
namespace orvel::WidgetFamily {

inline constexpr std::string_view systemSmall = "systemSmall";
inline constexpr std::string_view systemMedium = "systemMedium";
inline constexpr std::string_view systemLarge = "systemLarge";
inline constexpr std::string_view systemExtraLarge = "systemExtraLarge";

/// The layout of the status widget in a family; small in every one that is not known.
constexpr WidgetSize size(std::string_view family)
{
    if (family == systemMedium)
        return WidgetSize::medium;
    if (family == systemLarge || family == systemExtraLarge)
        return WidgetSize::large;
    return WidgetSize::small;
}

}
