#include "OrvelPlatform/Drawing/FontMaps.h"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include "OrvelPlatform/Drawing/FontFolder.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

/// Letters exactly as they were drawn, at any place: the same widths at every scale.
Handle<PangoContext> contextFor(PangoFontMap* map, LayoutDirection direction)
{
    Handle<PangoContext> context(pango_font_map_create_context(map));
    auto* const options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options);
    cairo_font_options_destroy(options);
    constexpr double pointsPerInch = 72;
    pango_cairo_context_set_resolution(context.get(), pointsPerInch);
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_base_dir(
        context.get(), direction == LayoutDirection::leftToRight ? PANGO_DIRECTION_LTR : PANGO_DIRECTION_RTL);
    return context;
}

}

FontMaps::Set FontMaps::made(FontSupply supply) const
{
    Set set { Handle<FcConfig>(supply == FontSupply::all ? FcInitLoadConfigAndFonts() : FcConfigCreate()),
        Handle<PangoFontMap>(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT)), {} };
    if (m_scope == FontScope::ownProcess && supply != FontSupply::all)
        FcConfigSetCurrent(set.configuration.get());
    addFonts(set.configuration.get(), m_folder, supply == FontSupply::rounded ? "rounded-" : "");
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(set.map.get()), set.configuration.get());
    for (const auto direction : { LayoutDirection::leftToRight, LayoutDirection::rightToLeft })
        set.contexts.at(static_cast<std::size_t>(direction)) = contextFor(set.map.get(), direction);
    return set;
}

PangoContext* FontMaps::context(FontSupply supply, LayoutDirection direction)
{
    auto& set = m_sets.at(static_cast<std::size_t>(supply));
    if (!set.map)
        set = made(supply);
    return set.contexts.at(static_cast<std::size_t>(direction)).get();
}

}
