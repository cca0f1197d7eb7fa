#include "OrvelPlatform/Drawing/FontMaps.h"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <utility>

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

FontMaps::FontMaps(fs::path folder, FontScope scope) : m_folder(std::move(folder))
{
    Handle<FcConfig> configuration(FcConfigCreate());
    if (scope == FontScope::ownProcess)
        FcConfigSetCurrent(configuration.get());
    fill(m_own, std::move(configuration), m_folder);
}

void FontMaps::fill(Set& set, Handle<FcConfig> configuration, const fs::path& folder)
{
    addFonts(configuration.get(), folder);
    set.map.reset(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(set.map.get()), configuration.get());
    set.configuration = std::move(configuration);
    for (const auto direction : { LayoutDirection::leftToRight, LayoutDirection::rightToLeft })
        set.contexts.at(static_cast<std::size_t>(direction)) = contextFor(set.map.get(), direction);
}

PangoContext* FontMaps::context(const Set& set, LayoutDirection direction)
{
    return set.contexts.at(static_cast<std::size_t>(direction)).get();
}

PangoContext* FontMaps::own(LayoutDirection direction)
{
    return context(m_own, direction);
}

PangoContext* FontMaps::withSystem(LayoutDirection direction)
{
    if (!m_all.map)
        fill(m_all, Handle<FcConfig>(FcInitLoadConfigAndFonts()), m_folder);
    return context(m_all, direction);
}

}
