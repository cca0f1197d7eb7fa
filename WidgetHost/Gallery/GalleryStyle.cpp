#include "WidgetHost/Gallery/GalleryStyle.h"

#include <fmt/format.h>

#include "OrvelDesign/CardBackground.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"

namespace orvel {

namespace {

namespace Space = Tokens::Space;
namespace Radius = Tokens::Radius;

/// The shadow of a sheet, falling downward: a widget lies on the desktop.
ShadowLayer fallingShadow(ColorFlags colors)
{
    auto layer = *(colors.dark ? Tokens::Shadow::sheet.dusk : Tokens::Shadow::sheet.dawn).begin();
    layer.y = -layer.y;
    layer.spread = layer.y / 2 - layer.blur / 2;
    return layer;
}

/// A picture's edge lies outside it: what is inside would lie below its pixels.
std::string edge(const StyleSheet& sheet)
{
    const auto colors = sheet.settings().colors;
    if (const auto border = cardEdge(LitEdge::resting, colors).border)
        return fmt::format("border: {}px solid {};", border->width, sheet.color(Palette::line));
    auto shadow = StyleSheet::shadow(fallingShadow(colors));
    if (colors.dark) // a shadow alone does not show where a dark picture ends on a dark ground
        shadow += fmt::format(", 0 0 0 1px {}", sheet.color(Palette::line));
    return fmt::format("box-shadow: {};", shadow);
}

void addPreviews(StyleSheet& sheet)
{
    constexpr double corner = GalleryMetrics::corner + GalleryMetrics::tileInset;
    sheet.rule("button.preview",
        fmt::format("padding: {}px; border-radius: {}px; -gtk-outline-radius: {}px;", GalleryMetrics::tileInset, corner,
            corner));
    sheet.rule(".picture",
        fmt::format("border-radius: {}px; background-color: {}; {}", GalleryMetrics::corner,
            sheet.color(Palette::surface1), edge(sheet)));
    sheet.rule(".caption", fmt::format("padding-top: {}px;", Space::s3));
    sheet.rule(".add",
        fmt::format("min-height: {}px; padding: 0 {}px; border-radius: {}px; background-color: {}; "
                    "color: {}; {}",
            Space::macControlRegular, Space::s3, Radius::full, sheet.color(Palette::selectionFill),
            sheet.color(Palette::accentText), sheet.hoverTransition()));
    sheet.rule("button.preview:hover .add",
        fmt::format(
            "background-color: {}; color: {};", sheet.color(Palette::accentFill), sheet.color(Palette::accentOn)));
}

void addWarning(StyleSheet& sheet)
{
    sheet.rule(".warning",
        fmt::format("padding: {}px {}px; border-radius: {}px; background-color: {}; color: {}; "
                    "border: 1px solid {};",
            Space::s3, Space::s4, Radius::md, sheet.color(Palette::noticeFill), sheet.color(Palette::noticeText),
            sheet.color(Palette::noticeLine)));
    sheet.rule(".warning button", fmt::format("background-color: {};", sheet.color(Palette::noticeLine)));
}

}

std::string galleryStyleSheet(const std::string& window, const StyleSettings& settings)
{
    StyleSheet sheet(window, settings);
    addPreviews(sheet);
    addWarning(sheet);
    sheet.rule(".foot", fmt::format("padding: {}px {}px;", Space::s4, GalleryMetrics::margin));
    return sheet.text();
}

}
