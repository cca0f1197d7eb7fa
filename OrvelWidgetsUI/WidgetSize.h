#pragma once

#include <array>
#include <string_view>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The sizes of the status widget.
enum class WidgetSize { small, medium, large };

template <>
inline constexpr std::array<std::string_view, 3> rawValues<WidgetSize> { "small", "medium", "large" };

/// A widget's whole canvas, in points.
struct WidgetCanvasSize {
    double width;
    double height;
    bool operator==(const WidgetCanvasSize&) const = default;
};

constexpr WidgetCanvasSize points(WidgetSize size)
{
    switch (size) {
    case WidgetSize::small:
        return { 170, 170 };
    case WidgetSize::medium:
        return { 364, 170 };
    case WidgetSize::large:
        return { 364, 382 };
    }
    return { 170, 170 };
}

}
