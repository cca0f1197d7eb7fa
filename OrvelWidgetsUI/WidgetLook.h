#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// How the desktop renders a widget: in its own colours, or tinted by the desktop in one of two ways.
enum class WidgetRenderingMode { fullColor, vibrant, accented };

template <>
inline constexpr std::array<std::string_view, 3> rawValues<WidgetRenderingMode> { "fullColor", "vibrant", "accented" };

struct WidgetRenderingModeKey {
    using Value = WidgetRenderingMode;
    static Value defaultValue() { return WidgetRenderingMode::fullColor; }
};

/// The look that a widget is drawn in.
enum class WidgetLook {
    dusk, // full colour, dark appearance
    dawn, // full colour, light appearance
    mono, // the desktop's vibrant rendering, in one colour
    clear, // the desktop's accented rendering, tinted
};

template <>
inline constexpr std::array<std::string_view, 4> rawValues<WidgetLook> { "dusk", "dawn", "mono", "clear" };

constexpr WidgetLook widgetLook(WidgetRenderingMode renderingMode, ColorScheme colorScheme)
{
    switch (renderingMode) {
    case WidgetRenderingMode::vibrant:
        return WidgetLook::mono;
    case WidgetRenderingMode::accented:
        return WidgetLook::clear;
    case WidgetRenderingMode::fullColor:
        return colorScheme == ColorScheme::dark ? WidgetLook::dusk : WidgetLook::dawn;
    }
    return WidgetLook::dawn;
}

/// Whether the desktop gives the colours and the background.
constexpr bool isSystemTinted(WidgetLook look)
{
    return look == WidgetLook::mono || look == WidgetLook::clear;
}

/// The colour scheme that a look carries; absent in the tinted looks, which have no colours of their own.
constexpr std::optional<ColorScheme> colorScheme(WidgetLook look)
{
    switch (look) {
    case WidgetLook::dusk:
        return ColorScheme::dark;
    case WidgetLook::dawn:
        return ColorScheme::light;
    case WidgetLook::mono:
    case WidgetLook::clear:
        return std::nullopt;
    }
    return std::nullopt;
}

/// The environment for all that a look holds: the look's own colour scheme, everything else (contrast too) from
/// outside.
Environment lookEnvironment(WidgetLook look, const Environment& outside);

}
