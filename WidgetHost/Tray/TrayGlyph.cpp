#include "WidgetHost/Tray/TrayGlyph.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "OrvelDesign/Palette.h"

namespace orvel {

namespace {

constexpr std::chrono::minutes step { 1 };

double clampedShare(const std::optional<double>& value)
{
    return std::clamp(value.value_or(0), 0.0, 1.0);
}

double remainingOf(const ControlValue& value)
{
    const auto share = clampedShare(value.glyphValue);
    if (!value.start || !value.end || *value.end <= *value.start)
        return share;
    constexpr double hair = 1e-6; // a whole minute may come a hair above itself
    const auto minutes = std::chrono::duration<double>(*value.end - *value.start) / step;
    return std::min(std::ceil(share * minutes - hair) / minutes, 1.0);
}

char byteOf(double component)
{
    return static_cast<char>(static_cast<unsigned char>(std::lround(std::clamp(component, 0.0, 1.0) * 255)));
}

}

MenuBarOrbState trayGlyph(const std::optional<ControlValue>& value, bool isReachable)
{
    if (!isReachable)
        return MenuBarOrb::Fix {};
    const auto name = value && value->glyph ? *value->glyph : "";
    if (name == "active")
        return MenuBarOrb::Active { .breath = value->glyphValue ? clampedShare(value->glyphValue) : 1 };
    if (name == "focus")
        return MenuBarOrb::Focus { .remaining = remainingOf(*value) };
    if (name == "unlock")
        return MenuBarOrb::Unlock {};
    if (name == "fix")
        return MenuBarOrb::Fix {};
    return MenuBarOrb::Idle {};
}

RGBA trayForeground(const DesktopAppearance& appearance)
{
    return Palette::textPrimary.rgba({ .dark = appearance.colorScheme != DesktopAppearance::ColorScheme::light,
        .increaseContrast = appearance.increasesContrast });
}

std::string trayPixels(const TemplateBitmap& bitmap, const RGBA& foreground)
{
    const std::array<char, 3> color { byteOf(foreground.red), byteOf(foreground.green), byteOf(foreground.blue) };
    std::string pixels;
    pixels.reserve(bitmap.alpha.size() * 4);
    for (const auto coverage : bitmap.alpha) {
        pixels += byteOf(coverage / 255.0 * foreground.alpha);
        pixels.append(color.data(), color.size());
    }
    return pixels;
}

}
