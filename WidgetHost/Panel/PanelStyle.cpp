#include "WidgetHost/Panel/PanelStyle.h"

#include <fmt/format.h>

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelDesign/TokensSpace.h"

namespace orvel {

namespace {

namespace Space = Tokens::Space;
namespace Radius = Tokens::Radius;

void addSurface(StyleSheet& sheet)
{
    auto drop = *(sheet.settings().colors.dark ? Tokens::Shadow::sheet.dusk : Tokens::Shadow::sheet.dawn).begin();
    drop.y = Space::s1;
    drop.blur = Space::s4;
    sheet.rule("&", "background-color: transparent;");
    sheet.rule(".surface",
        fmt::format("margin: {}px; padding: {}px; border-radius: {}px; background-color: {}; "
                    "border: 1px solid {}; box-shadow: {};",
            Space::s8, Space::s4, Radius::macRadiusPopover, sheet.color(Palette::popoverFill),
            sheet.color(Palette::line), StyleSheet::shadow(drop)));
    sheet.rule("&.opaque .surface",
        fmt::format(
            "margin: 0; border-radius: 0; box-shadow: none; background-color: {};", sheet.color(Palette::surface1)));
    sheet.rule(".notice",
        fmt::format("padding: {}px {}px; border-radius: {}px; background-color: {}; color: {};", Space::s2, Space::s3,
            Radius::sm, sheet.color(Palette::noticeFill), sheet.color(Palette::noticeText)));
}

void addTiles(StyleSheet& sheet)
{
    constexpr double corner = TileMetrics::corner;
    sheet.rule("button.tile",
        fmt::format("min-width: {}px; min-height: {}px; padding: {}px; border-radius: {}px; -gtk-outline-radius: {}px; "
                    "background-color: {}; {}",
            TileMetrics::width - 2 * TileMetrics::inset, TileMetrics::height - 2 * TileMetrics::inset,
            TileMetrics::inset, corner, corner, sheet.color(Palette::surface2), sheet.edge(LitEdge::resting)));
    sheet.rule("button.tile:checked", sheet.edge(LitEdge::active));
    // A wash over the tile, which is no colour of the tile's own.
    const auto wash = [&](const OrvelColor& color) {
        return fmt::format("background-image: image({});", sheet.color(color));
    };
    sheet.rule("button.tile:hover",
        fmt::format("background-color: {}; {}", sheet.color(Palette::surface2), wash(Palette::hoverFill)));
    sheet.rule("button.tile:active", wash(Palette::pressedFill));
    sheet.rule("button.tile:disabled", "opacity: 1;");
    sheet.rule("button.tile:disabled box,.waiting", fmt::format("opacity: {};", Tokens::Opacity::disabled));
    sheet.rule(".symbol",
        fmt::format("color: {}; background-color: {};", sheet.color(Palette::textPrimary), sheet.color(Palette::line)));
    sheet.rule("button.tile:checked .symbol",
        fmt::format(
            "color: {}; background-color: {};", sheet.color(Palette::accentOn), sheet.color(Palette::toggleOn)));
}

}

std::string panelStyleSheet(const std::string& window, const StyleSettings& settings)
{
    StyleSheet sheet(window, settings);
    addSurface(sheet);
    addTiles(sheet);
    sheet.rule("button.quiet",
        fmt::format("min-height: {}px; padding: 0 {}px; color: {};", Space::macSidebarRow, Space::s2,
            sheet.color(Palette::textSecondary)));
    return sheet.text();
}

}
