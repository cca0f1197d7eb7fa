#include "OrvelWidgets/RequestSurroundings.h"

#include "OrvelCopy/Lookup/StringTables.h"
#include "OrvelDesign/EnvironmentValues.h"

namespace orvel {

namespace {

/// The case that a text names; the default where it is absent.
template <typename Key>
typename Key::Value valueNamed(const std::optional<std::string>& text)
{
    const auto named = text.and_then([](std::string_view name) { return fromRawValue<typename Key::Value>(name); });
    return named.value_or(Key::defaultValue());
}

bool isSpoken(const Locale& locale)
{
    const auto& language = Copy::StringTables::ofCatalogue().language({ &locale, 1 });
    return &language != &Copy::Language::english() || locale.languageAndParents().back() == "en";
}

WidgetAction action(const OpenBreatheIntent& intent)
{
    WidgetAction action { .intent = std::string(OpenBreatheIntent::name), .parameters = {} };
    if (intent.style)
        action.parameters.emplace(OpenBreatheIntent::styleName, *intent.style);
    if (intent.minutes)
        action.parameters.emplace(OpenBreatheIntent::minutesName, *intent.minutes);
    return action;
}

}

Calendar calendar(const HostEnvironment& environment)
{
    return environment.timeZone ? Calendar(*environment.timeZone) : Calendar::current();
}

std::optional<Locale> wordsLocale(const HostEnvironment& environment)
{
    if (!environment.language)
        return std::nullopt;
    for (const auto& locale : Locale::preferred(*environment.language)) {
        if (isSpoken(locale))
            return locale;
    }
    return Locale::english();
}

EntryPlace entryPlace(const HostEnvironment& environment)
{
    return {
        .family = environment.family.value_or(""),
        .renderingMode = valueNamed<WidgetRenderingModeKey>(environment.renderingMode),
        .colorScheme = valueNamed<ColorSchemeKey>(environment.colorScheme),
        .locale = environment.locale ? *environment.locale : Locale::current(),
        .calendar = calendar(environment),
    };
}

Environment designEnvironment(const HostEnvironment& environment)
{
    Environment design;
    design.set<ColorSchemeKey>(valueNamed<ColorSchemeKey>(environment.colorScheme));
    design.set<ColorSchemeContrastKey>(valueNamed<ColorSchemeContrastKey>(environment.contrast));
    design.set<ReduceMotionKey>(environment.reduceMotion.value_or(false));
    design.set<ReduceTransparencyKey>(environment.reduceTransparency.value_or(false));
    design.set<OrvelAccessibilityKey>({ .usesPersonalAccent = environment.personalAccent.value_or(false) });
    design.set<OrvelBiggerTextKey>(BiggerText(environment.biggerText.value_or(0)));
    // The host's scale is the whole of it: without one nothing is asked of this process's own desktop.
    design.set<OrvelSystemTextScaleKey>(environment.textScale.value_or(1));
    return design;
}

WidgetDrawing widgetDrawing(const ShownWidget& shown, const HostEnvironment& environment)
{
    return {
        .content = shown.content,
        .size = shown.size,
        .look = shown.look,
        .breathe = shown.breatheButton.transform(action),
        .hasBackground = environment.background.value_or(true),
        .scale = environment.scale.value_or(1),
        .format = environment.format == PictureFormat::png ? WidgetDrawing::Format::png : WidgetDrawing::Format::pixels,
        .words = wordsLocale(environment),
        .environment = designEnvironment(environment),
    };
}

}
