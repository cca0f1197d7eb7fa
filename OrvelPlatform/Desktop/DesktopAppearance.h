#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

/// What the user chose for the whole desktop. What a desktop does not say has the value that stands here.
struct DesktopAppearance {
    enum class ColorScheme : std::uint8_t { noPreference, dark, light };

    /// Components from 0 to 1 in sRGB.
    struct AccentColor {
        double red;
        double green;
        double blue;
        bool operator==(const AccentColor&) const = default;
    };

    static constexpr double smallestTextScale = 0.5;
    static constexpr double largestTextScale = 3;

    ColorScheme colorScheme = ColorScheme::noPreference;
    bool increasesContrast = false;
    bool reducesMotion = false;
    std::optional<AccentColor> accentColor {}; // absent: none of the user's own
    double textScale = 1; // 0.5 to 3

    bool operator==(const DesktopAppearance&) const = default;
};

/// A setting as desktops name it: its namespace, which is also the name of GNOME's schema for it, and its key.
struct SettingName {
    const char* space;
    const char* key;
};

/// Looks a setting up; null where nobody says anything.
using SettingLookup = std::function<VariantHandle(const SettingName&)>;

/// The appearance that settings amount to. What all desktops share comes first, then GNOME's own settings. Values of
/// another type and numbers without a meaning are passed over.
DesktopAppearance appearanceFrom(const SettingLookup& value);

}
