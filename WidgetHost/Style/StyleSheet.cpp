#include "WidgetHost/Style/StyleSheet.h"

#include <cmath>
#include <fmt/format.h>
#include <utility>

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensMotion.h"

namespace orvel {

namespace {

std::string text(const RGBA& color)
{
    const auto byte = [](double component) { return std::lround(component * 255); };
    return fmt::format("rgba({},{},{},{:.3f})", byte(color.red), byte(color.green), byte(color.blue), color.alpha);
}

constexpr std::string_view familyName(TypeFamily family)
{
    return family == TypeFamily::serif ? "\"Source Serif 4\", serif" : "Nunito, sans-serif";
}

}

StyleSheet::StyleSheet(std::string window, const StyleSettings& settings)
    : m_window("#" + std::move(window)), m_settings(settings)
{
    rule("*", "all: unset;");
    addWindow();
    addTexts();
    addButtons();
    addSwitches();
    addScales();
    addScrolling();
}

void StyleSheet::rule(std::string_view selector, std::string_view declarations)
{
    std::string everywhere;
    for (std::size_t start = 0; start <= selector.size();) {
        const auto end = std::min(selector.find(',', start), selector.size());
        const auto one = selector.substr(start, end - start);
        const bool isOfTheWindow = one.starts_with('&');
        everywhere += fmt::format(
            "{}{}{}{}", start == 0 ? "" : ", ", m_window, isOfTheWindow ? "" : " ", one.substr(isOfTheWindow ? 1 : 0));
        start = end + 1;
    }
    m_text += fmt::format("{} {{ {} }}\n", everywhere, declarations);
}

std::string StyleSheet::color(const OrvelColor& color) const
{
    return orvel::text(color.rgba(m_settings.colors));
}

std::string StyleSheet::font(MacTypeRole role) const
{
    const auto [spec, size, lineHeight, tabularDigits] = metrics(role, m_settings.biggerText, m_settings.textScale);
    return fmt::format(
        "font-family: {}; font-size: {:.2f}px; font-weight: {}; font-style: {}; letter-spacing: {:.2f}px;",
        familyName(spec.family), size, spec.weight, spec.italic ? "italic" : "normal", spec.tracking);
}

std::string StyleSheet::shadow(const ShadowLayers& layers)
{
    std::string all;
    for (const auto& layer : layers) {
        all += fmt::format("{}{}{}px {}px {}px {}px {}", all.empty() ? "" : ", ", layer.inset ? "inset " : "", layer.x,
            layer.y, layer.blur, layer.spread, orvel::text(layer.color));
    }
    return all.empty() ? "none" : all;
}

std::string StyleSheet::edge(LitEdge edge) const
{
    const auto [layers, border] = cardEdge(edge, m_settings.colors);
    auto declarations = fmt::format("box-shadow: {};", shadow(layers));
    if (border)
        declarations += fmt::format(" border: {}px solid {};", border->width, orvel::text(border->color));
    return declarations;
}

std::string StyleSheet::hoverTransition() const
{
    if (m_settings.reducesMotion)
        return "transition: none;";
    const auto& ease = Tokens::Easing::easeFade;
    return fmt::format("transition: background-color {}s cubic-bezier({}, {}, {}, {});", Tokens::Duration::macHoverIn,
        ease.x1, ease.y1, ease.x2, ease.y2);
}

}
