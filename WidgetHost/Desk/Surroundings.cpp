#include "WidgetHost/Desk/Surroundings.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TextMagnification.h"

namespace orvel {

namespace {

constexpr double largestDrawnScale = 3; // more pixels than that nobody sees, and the largest text would not fit

bool isDark(ChosenLook look, const DesktopAppearance& appearance)
{
    switch (look) {
    case ChosenLook::dusk:
        return true;
    case ChosenLook::dawn:
        return false;
    case ChosenLook::automatic:
    case ChosenLook::mono:
    case ChosenLook::clear:
        break;
    }
    return appearance.colorScheme == DesktopAppearance::ColorScheme::dark;
}

std::string renderingMode(ChosenLook look)
{
    switch (look) {
    case ChosenLook::automatic:
    case ChosenLook::dusk:
    case ChosenLook::dawn:
        break;
    case ChosenLook::mono:
        return "vibrant";
    case ChosenLook::clear:
        return "accented";
    }
    return "fullColor";
}

ColorFlags flags(const HostEnvironment& environment)
{
    return { .dark = environment.colorScheme == "dark",
        .increaseContrast = environment.contrast == "increased",
        .reduceTransparency = environment.reduceTransparency.value_or(false) };
}

}

Homeland Homeland::current()
{
    return { .locale = Locale::current(), .language = Locale::wordsSetting(), .timeZone = TimeZone::current() };
}

HostEnvironment hostEnvironment(const Surroundings& around, std::string family, ChosenLook look, double scale)
{
    return {
        .family = std::move(family),
        .renderingMode = renderingMode(look),
        .colorScheme = isDark(look, around.appearance) ? "dark" : "light",
        .contrast = around.appearance.increasesContrast ? "increased" : "standard",
        .reduceMotion = around.appearance.reducesMotion,
        .reduceTransparency = around.reducesTransparency,
        .personalAccent = around.appearance.accentColor.has_value(),
        .textScale = around.appearance.textScale,
        .biggerText = around.biggerText,
        .locale = around.home.locale,
        .language = around.home.language,
        .timeZone = around.home.timeZone,
        .scale = std::clamp(std::ceil(scale), 1.0, largestDrawnScale),
        .background = look != ChosenLook::clear && look != ChosenLook::mono,
    };
}

double pointScale(const HostEnvironment& environment)
{
    Environment text;
    text.set<OrvelBiggerTextKey>(BiggerText(environment.biggerText.value_or(0)));
    text.set<OrvelSystemTextScaleKey>(environment.textScale.value_or(1));
    return textMagnification(text);
}

bool isTinted(const HostEnvironment& environment)
{
    return environment.renderingMode.value_or("fullColor") != "fullColor";
}

WindowTint tint(const HostEnvironment& environment, const DesktopAppearance& appearance)
{
    const auto in = flags(environment);
    const auto foreground = Color(Palette::textPrimary.rgba(in));
    if (environment.renderingMode == "vibrant")
        return { foreground, foreground };
    if (const auto& accent = appearance.accentColor)
        return { foreground, { accent->red, accent->green, accent->blue } };
    return { foreground, Color(Palette::accentText.rgba(in)) };
}

}
