#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "OrvelDesign/BiggerText.h"
#include "OrvelDesign/InteractionPreview.h"
#include "OrvelDesign/OrvelAccessibility.h"
#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Base/RawValue.h"

/// What the design system reads from an environment: first what the system says, then the product's own values. Each
/// key's default holds where nobody set another.
namespace orvel {

enum class ColorScheme { light, dark };
template <>
inline constexpr std::array<std::string_view, 2> rawValues<ColorScheme> { "light", "dark" };

enum class ColorSchemeContrast { standard, increased };
template <>
inline constexpr std::array<std::string_view, 2> rawValues<ColorSchemeContrast> { "standard", "increased" };

struct ColorSchemeKey {
    using Value = ColorScheme;
    static Value defaultValue() { return ColorScheme::light; }
};

struct ColorSchemeContrastKey {
    using Value = ColorSchemeContrast;
    static Value defaultValue() { return ColorSchemeContrast::standard; }
};

struct ReduceMotionKey {
    using Value = bool;
    static Value defaultValue() { return false; }
};

struct ReduceTransparencyKey {
    using Value = bool;
    static Value defaultValue() { return false; }
};

struct OrvelAccessibilityKey {
    using Value = OrvelAccessibility;
    static Value defaultValue() { return {}; }
};

struct OrvelBiggerTextKey {
    using Value = BiggerText;
    static Value defaultValue() { return BiggerText::actualSize; }
};

/// The system's text scale; absent: asked of the system's preferred sizes, style by style.
struct OrvelSystemTextScaleKey {
    using Value = std::optional<double>;
    static Value defaultValue() { return std::nullopt; }
};

struct OrvelSettingsLockedKey {
    using Value = bool;
    static Value defaultValue() { return false; }
};

struct OrvelRendersNativeControlsKey {
    using Value = bool;
    static Value defaultValue() { return true; }
};

struct OrvelInteractionPreviewKey {
    using Value = InteractionPreview;
    static Value defaultValue() { return InteractionPreview::none; }
};

/// The options in effect: the application's record, with what the system says added to it.
OrvelAccessibility effectiveAccessibility(const Environment& environment);

}
