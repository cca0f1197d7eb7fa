#include "WidgetHost/Gallery/GalleryStyle.h"

#include <fmt/format.h>

#include "OrvelDesign/MacSpace.h"
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

void addPreviews(StyleSheet& sheet)
{
    constexpr double corner = GalleryMetrics::corner + GalleryMetrics::tileInset;
    sheet.rule("button.preview",
        fmt::format("padding: {}px; border-radius: {}px; -gtk-outline-radius: {}px;", GalleryMetrics::tileInset, corner,
            corner));
    sheet.rule(".picture",
        fmt::format("border-radius: {}px; background-color: {}; box-shadow: {};", GalleryMetrics::corner,
            sheet.color(Palette::surface1), StyleSheet::shadow(fallingShadow(sheet.settings().colors))));
    sheet.rule(".caption", fmt::format("padding: {}px {}px 0 {}px;", Space::s3, Space::s1, Space::s2));
    sheet.rule(".add",
        fmt::format("min-height: {}px; padding: 0 {}px; border-radius: {}px; background-color: {}; "
                    "color: {}; {}",
            Space::macControlRegular, Space::s3, Radius::full, sheet.color(Palette::selectionFill),
            sheet.color(Palette::accentText), sheet.hoverTransition()));
    sheet.rule("button.preview:hover .add, button.preview:focus .add",
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
    sheet.rule(".settings",
        fmt::format("padding: {}px {}px; background-color: {}; border-top: 1px solid {}; "
                    "border-radius: 0 0 {}px {}px;",
            Space::s4, GalleryMetrics::margin, sheet.color(Palette::surface1), sheet.color(Palette::line),
            Radius::macRadiusWindow, Radius::macRadiusWindow));
    return sheet.text();
}

}
