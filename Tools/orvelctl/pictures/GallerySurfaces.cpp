#include <fmt/format.h>

#include "OrvelDesign/Drawn/CardBackground.h"
#include "OrvelDesign/Drawn/DropShadows.h"
#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/Drawn/OrvelBackground.h"
#include "OrvelDesign/Drawn/ProgressRing.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "Tools/orvelctl/pictures/GalleryDesign.h"
#include "Tools/orvelctl/pictures/Specimens.h"

namespace orvelctl {

using namespace orvel;

namespace {

constexpr Size cardSize { 220, 120 };

Color resolved(const OrvelColor& color, const Environment& environment)
{
    return color.resolve(environment);
}

View cards(const Environment& environment)
{
    std::vector<View> all;
    for (const auto& color : { Palette::surface1, Palette::surface2, Palette::surfacePlum }) {
        for (const auto edge : allCases<LitEdge>())
            all.push_back(Specimen { CardBackground { resolved(color, environment), Tokens::Radius::md, edge },
                cardSize, { fmt::format("{}, {}", color.name, rawValue(edge)) } });
    }
    constexpr std::size_t columns = 3;
    return grid(all, columns);
}

View backgrounds(const Environment& environment)
{
    std::vector<View> all;
    for (const auto& color : { Palette::bg, Palette::bgSunken, Palette::surface1 }) {
        const auto field = [&](View content) {
            return Clipped { RoundedRectangle { Tokens::Radius::sm }, std::move(content) };
        };
        all.push_back(
            Specimen { field(OrvelBackground { color }), cardSize, { std::string(color.name), "with grain" } });
        all.push_back(Specimen { field(Shape { Rectangle {}, resolved(color, environment) }), cardSize,
            { std::string(color.name), "without" } });
    }
    constexpr std::size_t columns = 2;
    return grid(all, columns);
}

View shadows(const Environment& environment)
{
    const bool isDark = environment.get<ColorSchemeKey>() == ColorScheme::dark;
    constexpr RoundedRectangle outline { Tokens::Radius::md };
    const auto& pair = Tokens::Shadow::sheet;
    const View sheet = DropShadows {
        .layers = isDark ? pair.dusk : pair.dawn,
        .outline = outline,
        .content = Shape { outline, resolved(Palette::surface1, environment) },
    };
    constexpr double room = 40; // as far as the shadow is blurred
    return Padding { .insets = Insets::all(room), .content = Specimen { sheet, cardSize, { "sheet" } } };
}

View focusRings(const Environment& environment)
{
    std::vector<View> all;
    constexpr Size buttonSize { 120, 32 };
    for (const bool isFocused : { false, true }) {
        const View button = FocusRing {
            .isFocused = isFocused,
            .outline = Capsule {},
            .content = Shape { Capsule {}, resolved(Palette::accentFill, environment) },
        };
        all.push_back(Specimen { Padding { .insets = Insets::all(Tokens::Space::s2), .content = button },
            { buttonSize.width + 2 * Tokens::Space::s2, buttonSize.height + 2 * Tokens::Space::s2 },
            { isFocused ? "with the keyboard" : "without" } });
    }
    return grid(all, all.size());
}

View rings(const Environment&)
{
    std::vector<View> all;
    constexpr double diameter = 64, width = 6;
    for (const double progress : { 0.0, 0.01, 0.25, 0.6, 0.99, 1.0 })
        all.push_back(Specimen { ProgressRing { .progress = progress, .diameter = diameter, .lineWidth = width },
            { diameter, diameter }, { fmt::format("{:g}", progress) } });
    return grid(all, all.size());
}

}

void addSurfaces(GalleryPage& page, const Environment& base)
{
    page.section("Surfaces", "Cards with each edge, backgrounds, shadows, rings.");
    page.row("Cards");
    addInBoth(page, "cards", base, cards);
    page.row("Cards with more contrast");
    addInBoth(page, "cards-contrast", base.with<ColorSchemeContrastKey>(ColorSchemeContrast::increased), cards);
    page.row("Backgrounds");
    addInBoth(page, "backgrounds", base, backgrounds);
    page.row("Shadow");
    addInBoth(page, "shadow", base, shadows);
    page.row("Focus ring");
    addInBoth(page, "focus-ring", base, focusRings);
    page.row("Progress ring");
    addInBoth(page, "progress-ring", base, rings);
}

}
