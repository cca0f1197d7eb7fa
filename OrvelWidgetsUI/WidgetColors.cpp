#include "OrvelWidgetsUI/WidgetColors.h"

#include "OrvelDesign/Palette.h"
#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

constexpr EmphasisInk primary { EmphasisLevel::primary };
constexpr EmphasisInk secondary { EmphasisLevel::secondary };
constexpr EmphasisInk tertiary { EmphasisLevel::tertiary };
constexpr EmphasisInk quaternary { EmphasisLevel::quaternary };

WidgetInk ink(WidgetLook look, const OrvelColor& fullColour, WidgetInk tinted)
{
    return isSystemTinted(look) ? tinted : PaletteInk { fullColour };
}

/// A level's alpha. More contrast strengthens the weaker levels, as it does the palette's second text and lines.
double alpha(EmphasisLevel level, bool increaseContrast)
{
    switch (level) {
    case EmphasisLevel::primary:
        return 1;
    case EmphasisLevel::secondary:
        return increaseContrast ? 0.85 : 0.7;
    case EmphasisLevel::tertiary:
        return increaseContrast ? 0.45 : 0.3;
    case EmphasisLevel::quaternary:
        return increaseContrast ? 0.3 : 0.18;
    }
    return 1;
}

}

std::optional<RGBA> resolve(const WidgetInk& ink, WidgetLook look, const Environment& outside)
{
    const auto flags = ColorFlags::in(lookEnvironment(look, outside));
    return std::visit(Match {
                          [&](const PaletteInk& palette) -> std::optional<RGBA> {
                              const auto color = palette.color.rgba(flags);
                              return color.withAlpha(color.alpha * palette.opacity);
                          },
                          [&](const EmphasisInk& emphasis) -> std::optional<RGBA> {
                              return RGBA { 1, 1, 1, alpha(emphasis.level, flags.increaseContrast) * emphasis.opacity };
                          },
                          [](CutOut) -> std::optional<RGBA> { return std::nullopt; },
                      },
        ink);
}

WidgetInk WidgetColors::kicker() const
{
    return ink(look, Palette::accentText, EmphasisInk { EmphasisLevel::primary, 0.82 });
}

WidgetInk WidgetColors::title() const
{
    return ink(look, Palette::textPrimary, primary);
}

WidgetInk WidgetColors::detail() const
{
    return ink(look, Palette::textSecondary, secondary);
}

WidgetInk WidgetColors::headerSymbol(IdentityTone tone) const
{
    return ink(look, Palette::identity(tone), primary);
}

WidgetInk WidgetColors::headerDisc(IdentityTone tone) const
{
    if (isSystemTinted(look))
        return EmphasisInk { EmphasisLevel::primary, chipOpacity };
    return PaletteInk { Palette::identity(tone), chipOpacity };
}

WidgetInk WidgetColors::ringProgress() const
{
    return ink(look, Palette::ringProgress, primary);
}

WidgetInk WidgetColors::ringTrack() const
{
    return ink(look, Palette::ringTrack, tertiary);
}

WidgetInk WidgetColors::accentFill() const
{
    return ink(look, Palette::accentFill, primary);
}

WidgetInk WidgetColors::accentOn() const
{
    return ink(look, Palette::accentOn, CutOut {});
}

WidgetInk WidgetColors::orbPool() const
{
    return ink(look, Palette::orbPool, quaternary);
}

WidgetInk WidgetColors::line() const
{
    return ink(look, Palette::line, quaternary);
}

WidgetInk WidgetColors::todayBar() const
{
    return ink(look, Palette::accentText, primary);
}

}
