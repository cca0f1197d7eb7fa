#include "OrvelPlatform/Desktop/DesktopAppearance.h"

#include <algorithm>
#include <gio/gio.h>

#include "OrvelPlatform/Desktop/BusValues.h"

namespace orvel {

namespace {

using ColorScheme = DesktopAppearance::ColorScheme;
using AccentColor = DesktopAppearance::AccentColor;

constexpr const char* shared = "org.freedesktop.appearance";
constexpr const char* gnome = "org.gnome.desktop.interface";
constexpr const char* gnomeAccessibility = "org.gnome.desktop.a11y.interface";

/// Reads a setting with one of the readers of bus values; absent where there is none of that type.
template <typename Read>
auto read(const SettingLookup& value, const SettingName& name, Read reader) -> decltype(reader(nullptr))
{
    const auto found = value(name);
    return found ? reader(found.get()) : std::nullopt;
}

ColorScheme colorScheme(const SettingLookup& value)
{
    if (const auto number = read(value, { shared, "color-scheme" }, &wholeNumber))
        return *number == 1 ? ColorScheme::dark : *number == 2 ? ColorScheme::light : ColorScheme::noPreference;
    const auto name = read(value, { gnome, "color-scheme" }, &text);
    return name == "prefer-dark" ? ColorScheme::dark
        : name == "prefer-light" ? ColorScheme::light
                                 : ColorScheme::noPreference;
}

bool increasesContrast(const SettingLookup& value)
{
    if (const auto number = read(value, { shared, "contrast" }, &wholeNumber))
        return *number == 1;
    return read(value, { gnomeAccessibility, "high-contrast" }, &truth).value_or(false);
}

bool reducesMotion(const SettingLookup& value)
{
    if (const auto number = read(value, { shared, "reduced-motion" }, &wholeNumber))
        return *number == 1;
    return !read(value, { gnome, "enable-animations" }, &truth).value_or(true);
}

/// Components outside 0 to 1 are a desktop's way to say that there is no such colour.
std::optional<AccentColor> colorOf(_GVariant* value)
{
    if (g_variant_is_of_type(value, G_VARIANT_TYPE("(ddd)")) == FALSE)
        return std::nullopt;
    AccentColor color {};
    g_variant_get(value, "(ddd)", &color.red, &color.green, &color.blue);
    const auto isComponent = [](double component) { return component >= 0 && component <= 1; };
    if (!isComponent(color.red) || !isComponent(color.green) || !isComponent(color.blue))
        return std::nullopt;
    return color;
}

double textScale(const SettingLookup& value)
{
    const auto scale = read(value, { gnome, "text-scaling-factor" }, &number);
    if (!scale || *scale <= 0)
        return 1;
    return std::clamp(*scale, DesktopAppearance::smallestTextScale, DesktopAppearance::largestTextScale);
}

}

DesktopAppearance appearanceFrom(const SettingLookup& value)
{
    return {
        .colorScheme = colorScheme(value),
        .increasesContrast = increasesContrast(value),
        .reducesMotion = reducesMotion(value),
        .accentColor = read(value, { shared, "accent-color" }, &colorOf),
        .textScale = textScale(value),
    };
}

}
