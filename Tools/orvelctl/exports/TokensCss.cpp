#include <optional>

#include <fmt/format.h>

#include "OrvelDesign/Tokens.h"
#include "Tools/orvelctl/exports/FontNames.h"
#include "Tools/orvelctl/exports/TokensExport.h"

namespace orvel {

namespace {

/// "macRowIcon" is mac-row-icon, "surface1" surface-1 as the palette names it; "s10" stays whole.
std::string hyphenated(std::string_view name)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::string text;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isCapital = name[i] >= 'A' && name[i] <= 'Z';
        if (isCapital || (i > 1 && isDigit(name[i]) && !isDigit(name[i - 1])))
            text += '-';
        text += isCapital ? static_cast<char>(name[i] - 'A' + 'a') : name[i];
    }
    return text;
}

std::string css(const RGBA& color)
{
    const auto components = fmt::format("{} {} {}", color.red, color.green, color.blue);
    return color.alpha == 1 ? fmt::format("color(srgb {})", components)
                            : fmt::format("color(srgb {} / {})", components, color.alpha);
}

std::string css(const Bezier& curve)
{
    return fmt::format("cubic-bezier({}, {}, {}, {})", curve.x1, curve.y1, curve.x2, curve.y2);
}

/// Our first layer is drawn first and lies lowest; a style sheet's first lies on top.
std::string css(const ShadowLayers& layers)
{
    std::string list;
    for (const auto& layer : layers)
        list = fmt::format("{}{}px {}px {}px {}px {}{}{}", layer.inset ? "inset " : "", layer.x, layer.y, layer.blur,
            layer.spread, css(layer.color), list.empty() ? "" : ", ", list);
    return list;
}

std::string css(const TypeSpecValue& spec)
{
    const auto font = fontNames(spec.family);
    return fmt::format("{}{} {}px/{}px \"{}\", {}", spec.italic ? "italic " : "", spec.weight, spec.size,
        spec.lineHeight, font.name, font.generic);
}

std::string property(std::string_view group, std::string_view name, std::string_view value)
{
    return fmt::format("--orvel-{}-{}: {};\n", group, hyphenated(name), value);
}

template <typename All, typename Text>
std::string properties(std::string_view group, const All& all, Text text)
{
    std::string lines;
    for (const auto& [name, value] : all)
        lines += property(group, name, text(value));
    return lines;
}

/// One of the six variants, for the colours that have it.
template <typename Variant>
std::string colours(Variant Tokens::ColorPair::*variant)
{
    std::string lines;
    for (const auto& [name, pair] : Tokens::Color::all)
        if (const std::optional<RGBA> color = pair.*variant)
            lines += property("color", name, css(*color));
    return lines;
}

std::string shadows(ShadowLayers ShadowPair::*appearance)
{
    return properties("shadow", Tokens::Shadow::all, [&](const ShadowPair& shadow) { return css(shadow.*appearance); });
}

/// What no preference changes.
std::string constants()
{
    const auto points = [](double value) { return fmt::format("{}px", value); };
    return properties("space", Tokens::Space::all, points) + properties("radius", Tokens::Radius::all, points)
        + properties("duration", Tokens::Duration::all, [](double seconds) { return fmt::format("{}s", seconds); })
        + properties("easing", Tokens::Easing::all, [](const Bezier& curve) { return css(curve); })
        + properties("opacity", Tokens::Opacity::all, [](double value) { return fmt::format("{}", value); })
        + properties("type", Tokens::TypeSpec::all, [](const TypeSpecValue& spec) { return css(spec); })
        + properties(
            "tracking", Tokens::TypeSpec::all, [&](const TypeSpecValue& spec) { return points(spec.tracking); });
}

std::string indented(std::string_view lines, std::string_view indent)
{
    std::string text;
    for (std::size_t start = 0; start < lines.size();) {
        const auto end = lines.find('\n', start) + 1;
        text.append(indent).append(lines.substr(start, end - start));
        start = end;
    }
    return text;
}

std::string media(std::string_view query, std::string_view lines)
{
    return fmt::format("\n@media {} {{\n  :root {{\n{}  }}\n}}\n", query, indented(lines, "    "));
}

}

std::string tokensAsCss()
{
    using Tokens::ColorPair;
    const auto light =
        "color-scheme: light dark;\n" + constants() + colours(&ColorPair::dawn) + shadows(&ShadowPair::dawn);
    // The last block that applies holds: dark after light, and less transparency after more contrast.
    return fmt::format(":root {{\n{}}}\n", indented(light, "  "))
        + media("(prefers-color-scheme: dark)", colours(&ColorPair::dusk) + shadows(&ShadowPair::dusk))
        + media("(prefers-contrast: more)", colours(&ColorPair::dawnHighContrast))
        + media("(prefers-contrast: more) and (prefers-color-scheme: dark)", colours(&ColorPair::duskHighContrast))
        + media("(prefers-reduced-transparency: reduce)", colours(&ColorPair::dawnSolid))
        + media(
            "(prefers-reduced-transparency: reduce) and (prefers-color-scheme: dark)", colours(&ColorPair::duskSolid));
}

}
