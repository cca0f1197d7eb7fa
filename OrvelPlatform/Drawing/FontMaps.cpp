#include "OrvelPlatform/Drawing/FontMaps.h"

#include <fmt/format.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <string>

#include "OrvelPlatform/Drawing/FontFolder.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostContexts = 16; // desktops speak few languages

/// The name under which typefaces say that they are for a language. Of Chinese they know places and no scripts.
PangoLanguage* pangoLanguage(std::string_view tag)
{
    const auto plain = tag.substr(0, tag.find("-u-"));
    const auto has = [&](std::string_view part) { return plain.find(part) != std::string_view::npos; };
    if (plain.starts_with("zh") && has("Hant") && !has("HK") && !has("MO"))
        return pango_language_from_string("zh-tw");
    if (plain.starts_with("zh") && (has("Hans") || plain == "zh"))
        return pango_language_from_string("zh-cn");
    return pango_language_from_string(std::string(plain).c_str());
}

/// Letters exactly as they were drawn, at any place: the same widths at every scale.
void setExact(PangoContext* context)
{
    auto* const options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
}

Handle<PangoContext> contextFor(PangoFontMap* map, LayoutDirection direction, std::string_view language)
{
    Handle<PangoContext> context(pango_font_map_create_context(map));
    setExact(context.get());
    pango_context_set_base_dir(
        context.get(), direction == LayoutDirection::leftToRight ? PANGO_DIRECTION_LTR : PANGO_DIRECTION_RTL);
    // Fonts are looked for by language as well: what has none of its own, an ellipsis, is to find the same ones.
    if (!language.empty())
        pango_context_set_language(context.get(), pangoLanguage(language));
    return context;
}

}

FontMaps::Set FontMaps::made(FontSupply supply) const
{
    Set set { Handle<FcConfig>(supply == FontSupply::all ? FcInitLoadConfigAndFonts() : FcConfigCreate()),
        Handle<PangoFontMap>(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT)), {} };
    if (m_scope == FontScope::ownProcess && supply != FontSupply::all)
        FcConfigSetCurrent(set.configuration.get());
    if (supply == FontSupply::rounded) {
        for (const int weight : roundedWeights)
            addFont(set.configuration.get(), m_folder / fmt::format("rounded-{}.ttf", weight));
    } else {
        addFonts(set.configuration.get(), m_folder);
    }
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(set.map.get()), set.configuration.get());
    // Of the map and not of its contexts: the library measures a font in a context of its own, and would look for the
    // font again in another resolution.
    constexpr double pointsPerInch = 72;
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(set.map.get()), pointsPerInch);
    return set;
}

PangoContext* FontMaps::context(FontSupply supply, LayoutDirection direction, std::string_view language)
{
    auto& set = m_sets.at(static_cast<std::size_t>(supply));
    if (!set.map)
        set = made(supply);
    if (set.contexts.size() > mostContexts)
        set.contexts.clear();
    auto& context = set.contexts[{ direction, std::string(language) }];
    if (!context)
        context = contextFor(set.map.get(), direction, language);
    return context.get();
}

}
