#include <fmt/format.h>

#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/MacSpace.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Style/StyleSheet.h"

namespace orvel {

namespace Space = Tokens::Space;
namespace Radius = Tokens::Radius;

void StyleSheet::addWindow()
{
    const auto& drop = *Tokens::Shadow::sheet.dusk.begin();
    const ShadowLayer falling {
        .inset = false, .x = 0, .y = Space::s1, .blur = Space::s5, .spread = 0, .color = drop.color
    };
    // The window's ground begins below its header.
    rule("&",
        fmt::format("background-color: {}; color: {}; border-radius: 0 0 {}px {}px; {}", color(Palette::bg),
            color(Palette::textPrimary), Radius::macRadiusWindow, Radius::macRadiusWindow, font(MacTypeRole::body)));
    rule("decoration",
        fmt::format("border-radius: {}px; box-shadow: {}, 0 0 0 1px {}; margin: {}px;", Radius::macRadiusWindow,
            shadow(falling), color(Palette::line), Space::s3));
    rule("headerbar",
        fmt::format("min-height: {}px; padding: 0 {}px; background-color: {}; border-radius: {}px {}px 0 0;",
            Space::s10, Space::s2, color(Palette::bg), Radius::macRadiusWindow, Radius::macRadiusWindow));
    rule("button.titlebutton",
        fmt::format("min-width: {}px; min-height: {}px; border-radius: {}px; color: {};", Space::macControlRegular,
            Space::macControlRegular, Radius::full, color(Palette::textSecondary)));
    // Where a window manager knows no shadows that a window draws itself, the frame is what the window is resized by.
    rule("&.solid-csd decoration",
        fmt::format("border-radius: 0; box-shadow: none; margin: {}px; background-color: {}; "
                    "border: 1px solid {};",
            Space::s1, color(Palette::bg), color(Palette::line)));
    rule(".foot",
        fmt::format("border-top: 1px solid {}; border-radius: 0 0 {}px {}px;", color(Palette::line),
            Radius::macRadiusWindow, Radius::macRadiusWindow));
    for (const std::string whole : { "&.maximized", "&.fullscreen", "&.tiled", "&.solid-csd" }) {
        for (const auto* const part : { "", " headerbar", " .foot" })
            rule(whole + part, "border-radius: 0;"); // no corner is in sight
    }
}

void StyleSheet::addTexts()
{
    for (const auto role : allCases<MacTypeRole>())
        rule(fmt::format(".{}", rawValue(role)), font(role));
    rule(".secondary", fmt::format("color: {};", color(Palette::textSecondary)));
}

void StyleSheet::addButtons()
{
    const auto ring = [&](double radius) {
        return fmt::format("outline: {}px solid {}; outline-offset: {}px; -gtk-outline-radius: {}px;", FocusRing::width,
            color(Palette::focusRing), FocusRing::outset, radius + FocusRing::outset);
    };
    rule("button", fmt::format("border-radius: {}px; {} {}", Radius::sm, ring(Radius::sm), hoverTransition()));
    rule("button:hover", fmt::format("background-color: {};", color(Palette::hoverFill)));
    rule("button:active", fmt::format("background-color: {};", color(Palette::pressedFill)));
    rule("button:disabled", fmt::format("opacity: {};", Tokens::Opacity::disabled));
    rule("button.capsule",
        fmt::format("min-height: {}px; padding: 0 {}px; border-radius: {}px; -gtk-outline-radius: {}px;",
            Space::macControlLarge, MacSpace::inset, Radius::full, Radius::full));
    rule("switch,scale", ring(Radius::full));
}

void StyleSheet::addSwitches()
{
    constexpr double knob = Space::macControlSmall, gap = 2;
    rule("switch",
        fmt::format("background-color: {}; border-radius: {}px; padding: {}px; {}", color(Palette::ringTrack),
            Radius::full, gap, hoverTransition()));
    rule("switch:checked", fmt::format("background-color: {};", color(Palette::toggleOn)));
    rule("switch slider",
        fmt::format("min-width: {}px; min-height: {}px; border-radius: {}px; background-color: {};", knob, knob,
            Radius::full, color(m_settings.colors.dark ? Palette::textPrimary : Palette::surface2)));
    rule("switch image", "color: transparent;"); // letters inside a switch say nothing that its place does not
}

void StyleSheet::addScales()
{
    constexpr double knob = Space::macControlSmall, track = Space::s1;
    rule("scale", fmt::format("padding: 0 {}px;", knob / 2)); // the knob's half beyond the ends
    rule("scale trough",
        fmt::format("min-height: {}px; min-width: {}px; border-radius: {}px; background-color: {};", track,
            Space::s16 * 2, Radius::full, color(Palette::ringTrack)));
    rule("scale highlight",
        fmt::format("border-radius: {}px; background-color: {};", Radius::full, color(Palette::toggleOn)));
    rule("scale slider",
        fmt::format("min-width: {}px; min-height: {}px; margin: {}px 0; border-radius: {}px; background-color: {}; "
                    "box-shadow: 0 1px 3px rgba(0,0,0,0.3);",
            knob, knob, -(knob - track) / 2, Radius::full,
            color(m_settings.colors.dark ? Palette::textPrimary : Palette::surface2)));
}

void StyleSheet::addScrolling()
{
    rule("undershoot.top", fmt::format("box-shadow: inset 0 1px {};", color(Palette::line))); // more lies above
    rule("scrollbar slider",
        fmt::format("min-width: {}px; min-height: {}px; margin: 2px; border-radius: {}px; background-color: {};",
            MacSpace::close, Space::s10, Radius::full, color(Palette::ringTrack)));
    rule("scrollbar slider:hover", fmt::format("background-color: {};", color(Palette::textSecondary)));
}

}
