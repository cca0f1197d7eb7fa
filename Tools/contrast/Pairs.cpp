#include "Tools/contrast/Pairs.h"

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/PressedCapsuleFill.h"
#include "Tools/contrast/Contrast.h"

namespace orvel {

namespace {

struct NamedInk {
    std::string name;
    Ink ink;
};

Ink ink(const OrvelColor& color, double opacity = 1)
{
    return [color, opacity](ColorFlags flags) {
        const auto rgba = color.rgba(flags);
        return rgba.withAlpha(rgba.alpha * opacity);
    };
}

Ink fixed(RGBA color)
{
    return [color](ColorFlags) { return color; };
}

NamedInk named(const OrvelColor& color)
{
    return { std::string(color.name), ink(color) };
}

Surface plain(const OrvelColor& color)
{
    return { std::string(color.name), { ink(color) } };
}

Surface laid(const OrvelColor& above, const OrvelColor& beneath)
{
    return { std::string(above.name) + " on " + std::string(beneath.name), { ink(beneath), ink(above) } };
}

/// A surface that hangs over whatever the desktop shows, at its two extremes.
std::vector<Surface> overDesktop(const OrvelColor& color)
{
    const std::string name(color.name);
    return {
        { name + " over black", { fixed({ 0, 0, 0, 1 }), ink(color) } },
        { name + " over white", { fixed({ 1, 1, 1, 1 }), ink(color) } },
    };
}

std::vector<Surface> windowSurfaces()
{
    return { plain(Palette::bg), plain(Palette::bgSunken), plain(Palette::surface1), plain(Palette::surface2),
        plain(Palette::surfacePlum) };
}

/// Each ink on each surface.
std::vector<Pair> across(const std::vector<NamedInk>& inks, const std::vector<Surface>& surfaces)
{
    std::vector<Pair> pairs;
    for (const auto& one : inks)
        for (const auto& surface : surfaces)
            pairs.push_back({ one.name, one.ink, surface });
    return pairs;
}

std::vector<NamedInk> textRoles()
{
    return { named(Palette::textPrimary), named(Palette::textSecondary), named(Palette::accentText) };
}

std::vector<Surface> translucentSurfaces()
{
    auto surfaces = overDesktop(Palette::popoverFill);
    for (auto& surface : overDesktop(Palette::veil))
        surfaces.push_back(std::move(surface));
    return surfaces;
}

std::vector<Surface> stateFills()
{
    std::vector<Surface> surfaces;
    for (const auto& fill : { Palette::hoverFill, Palette::pressedFill, Palette::selectionFill })
        for (const auto& beneath : { Palette::bg, Palette::surface1, Palette::surface2 })
            surfaces.push_back(laid(fill, beneath));
    return surfaces;
}

std::vector<Pair> filledText()
{
    const Ink pressedFill = [](ColorFlags flags) { return pressed(Palette::accentFill.pair, flags); };
    return {
        { "accent-on", ink(Palette::accentOn), plain(Palette::accentFill) },
        { "accent-on", ink(Palette::accentOn), { "accent-fill, pressed", { pressedFill } } },
        { "notice-text", ink(Palette::noticeText), plain(Palette::noticeFill) },
    };
}

/// A tone's symbol in its own chip, on the surfaces that a widget's gradient runs through.
std::vector<Pair> toneMarks()
{
    std::vector<Pair> pairs;
    for (const auto tone : allCases<IdentityTone>())
        for (const auto& beneath : { Palette::surface2, Palette::surface1, Palette::bg }) {
            const auto color = Palette::identity(tone);
            pairs.push_back({ std::string(color.name), ink(color),
                { "its chip on " + std::string(beneath.name), { ink(beneath), ink(color, chipOpacity) } } });
        }
    return pairs;
}

std::vector<Pair> marks()
{
    auto pairs = across({ named(Palette::ringProgress), named(Palette::focusRing), named(Palette::toggleOn) },
        { plain(Palette::bg), plain(Palette::surface1), plain(Palette::surface2) });
    for (const auto& beneath : { Palette::bg, Palette::surface1, Palette::surface2 })
        pairs.push_back({ "ring-progress", ink(Palette::ringProgress), laid(Palette::ringTrack, beneath) });
    pairs.push_back({ "accent-on", ink(Palette::accentOn), plain(Palette::toggleOn) });
    pairs.push_back({ "notice-icon", ink(Palette::noticeIcon), plain(Palette::noticeFill) });
    return pairs;
}

}

RGBA Surface::color(ColorFlags flags) const
{
    RGBA result { 0, 0, 0, 1 };
    for (const auto& layer : layers)
        result = composited(layer(flags), result);
    return result;
}

double Pair::ratio(ColorFlags flags) const
{
    const auto beneath = surface.color(flags);
    return contrastRatio(composited(ink(flags), beneath), beneath);
}

std::vector<Section> sections()
{
    return {
        { "Text on opaque surfaces",
            "Text of any size. A widget's gradient runs from surface-2 through surface-1 to bg.", 4.5,
            across(textRoles(), windowSurfaces()) },
        { "Text on translucent surfaces", "What lies beneath is the desktop, here at its darkest and at its lightest.",
            4.5, across(textRoles(), translucentSurfaces()) },
        { "Text on rows that are pointed at, pressed or selected", "The fill is composited over the surface.", 4.5,
            across(textRoles(), stateFills()) },
        { "Text on fills of its own", "Buttons and notices.", 4.5, filledText() },
        { "Tones in their chips", "Symbols, not text: the header of a widget and the marks of Blocks and Lists.", 3,
            toneMarks() },
        { "Other marks", "Parts of controls and figures that must be told apart from what they stand on.", 3, marks() },
    };
}

}
