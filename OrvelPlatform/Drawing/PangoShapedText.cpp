#include "OrvelPlatform/Drawing/PangoShapedText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <pango/pangocairo.h>
#include <pango/pangofc-font.h>
#include <span>
#include <string_view>
#include <utility>

#include "OrvelPlatform/Views/Alignment.h"

namespace orvel {

namespace {

std::vector<PangoLayoutLine*> linesOf(PangoLayout* layout)
{
    std::vector<PangoLayoutLine*> lines;
    for (auto* item = pango_layout_get_lines_readonly(layout); item; item = item->next)
        lines.push_back(static_cast<PangoLayoutLine*>(item->data));
    return lines;
}

std::vector<PangoGlyphItem*> itemsOf(const PangoLayoutLine* line)
{
    std::vector<PangoGlyphItem*> items;
    for (auto* item = line->runs; item; item = item->next)
        items.push_back(static_cast<PangoGlyphItem*>(item->data));
    return items;
}

/// Puts all scripts on one baseline. Pango lets a line's first script decide and moves the others by what it takes for
/// that script's baseline in their typefaces, which a typeface without such a table lets it guess: digits among Han
/// letters would hang in the air.
void alignBaselines(PangoLayout* layout)
{
    const auto isMoved = [](const PangoGlyphItem* item) { return item->y_offset != 0; };
    for (const auto* line : linesOf(layout)) {
        if (std::ranges::none_of(itemsOf(line), isMoved))
            continue;
        pango_layout_get_lines(layout); // what is known of the lines' places is forgotten
        for (auto* item : itemsOf(line))
            item->y_offset = 0;
    }
}

bool isEllipsis(const PangoGlyphItem* item)
{
    return (item->item->analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS) != 0;
}

bool hasColors(PangoFont* font)
{
    FcBool isColored = FcFalse;
    if (!PANGO_IS_FC_FONT(font))
        return false;
    FcPatternGetBool(pango_fc_font_get_pattern(PANGO_FC_FONT(font)), FC_COLOR, 0, &isColored);
    return isColored == FcTrue;
}

/// The line's words as they are shown.
std::string shownText(PangoLayout* layout, PangoLayoutLine* line)
{
    const std::string_view text(pango_layout_get_text(layout));
    const auto start = static_cast<std::size_t>(pango_layout_line_get_start_index(line));
    auto shown = text.substr(start, static_cast<std::size_t>(pango_layout_line_get_length(line)));
    for (const auto* item : itemsOf(line)) {
        if (isEllipsis(item))
            return std::string(text.substr(start, static_cast<std::size_t>(item->item->offset) - start)) + "…";
    }
    while (shown.ends_with(' '))
        shown.remove_suffix(1);
    return std::string(shown);
}

/// Scripts whose letters stand by themselves. Where they join, glyphs overlap, and only their common outline has an
/// even edge.
bool isOfSeparateLetters(const PangoItem* item)
{
    constexpr GUnicodeScript scripts[] { G_UNICODE_SCRIPT_COMMON, G_UNICODE_SCRIPT_LATIN, G_UNICODE_SCRIPT_GREEK,
        G_UNICODE_SCRIPT_CYRILLIC, G_UNICODE_SCRIPT_HAN, G_UNICODE_SCRIPT_HIRAGANA, G_UNICODE_SCRIPT_KATAKANA,
        G_UNICODE_SCRIPT_HANGUL };
    return std::ranges::find(scripts, static_cast<GUnicodeScript>(item->analysis.script)) != std::end(scripts);
}

PangoRectangle inkOf(PangoLayoutLine* line)
{
    PangoRectangle ink;
    pango_layout_line_get_extents(line, &ink, nullptr);
    return ink;
}

HorizontalAlignment horizontal(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::leading:
        return HorizontalAlignment::leading;
    case TextAlignment::center:
        return HorizontalAlignment::center;
    case TextAlignment::trailing:
        return HorizontalAlignment::trailing;
    }
    return HorizontalAlignment::leading;
}

struct GlyphItemRelease {
    void operator()(PangoGlyphItem* item) const { pango_glyph_item_free(item); }
};
using GlyphItem = std::unique_ptr<PangoGlyphItem, GlyphItemRelease>;

/// In the layout's own lengths.
double itemWidth(const GlyphItem& item)
{
    return static_cast<double>(pango_glyph_string_get_width(item->glyphs)) / PANGO_SCALE;
}

/// The item's parts of one run each, in the order in which they are seen.
std::vector<GlyphItem> partsByRun(const PangoGlyphItem* item, const char* text, const std::vector<std::size_t>& runEnds)
{
    std::vector<GlyphItem> parts;
    GlyphItem rest(pango_glyph_item_copy(const_cast<PangoGlyphItem*>(item)));
    for (const auto end : runEnds) {
        const auto start = static_cast<std::size_t>(rest->item->offset);
        if (end > start && end < start + static_cast<std::size_t>(rest->item->length))
            parts.emplace_back(pango_glyph_item_split(rest.get(), text, static_cast<int>(end - start)));
    }
    const bool fromRight = rest->item->analysis.level % 2 != 0;
    parts.push_back(std::move(rest));
    if (fromRight)
        std::ranges::reverse(parts);
    return parts;
}

}

PangoShapedText::PangoShapedText(
    Set set, const TextBlock& block, double ascent, double descent, std::shared_ptr<GlyphMasks> glyphs)
    : m_layout(std::move(set.layout))
    , m_layoutScale(set.scale)
    , m_glyphs(std::move(glyphs))
    , m_runEnds(std::move(set.runEnds))
{
    setLines(block);
    const double lineHeight = block.runs.front().style.lineHeight;
    const double firstAt = (lineHeight - ascent - descent) / 2 + ascent;
    for (std::size_t i = 0; i < lines.size(); ++i)
        m_baselines.push_back(static_cast<double>(i) * lineHeight + firstAt);
    size.height = static_cast<double>(lines.size()) * lineHeight;
    firstBaseline = m_baselines.front();
    lastBaseline = m_baselines.back();
}

PangoShapedText::~PangoShapedText() = default;

double PangoShapedText::points(int units) const
{
    return static_cast<double>(units) / PANGO_SCALE * m_layoutScale;
}

double PangoShapedText::widthOf(PangoLayoutLine* line) const
{
    PangoRectangle logical;
    pango_layout_line_get_extents(line, nullptr, &logical);
    return points(logical.width);
}

void PangoShapedText::setLines(const TextBlock& block)
{
    alignBaselines(m_layout.get());
    for (auto* const line : linesOf(m_layout.get())) {
        lines.push_back({ shownText(m_layout.get(), line), 0, widthOf(line) });
        size.width = std::max(size.width, lines.back().width);
        for (const auto* item : itemsOf(line))
            m_hasColorGlyphs = m_hasColorGlyphs || hasColors(item->item->analysis.font);
    }
    for (auto& line : lines)
        line.x = placedX(line.width, 0, size.width, horizontal(block.alignment), block.direction);
}

void PangoShapedText::addOutlines(cairo_t* context, std::size_t line, std::size_t run) const
{
    const char* const text = pango_layout_get_text(m_layout.get());
    const auto begin = run == 0 ? 0 : m_runEnds.at(run - 1);
    double x = 0;
    for (const auto* item : itemsOf(linesOf(m_layout.get()).at(line))) {
        for (const auto& part : partsByRun(item, text, m_runEnds)) {
            const auto offset = static_cast<std::size_t>(part->item->offset);
            if (offset >= begin && offset < m_runEnds.at(run)) {
                cairo_rel_move_to(context, x, 0);
                pango_cairo_glyph_string_path(context, part->item->analysis.font, part->glyphs);
                x = 0;
            }
            x += itemWidth(part);
        }
    }
}

/// Whether every glyph is a typeface's own, on the baseline and by itself: no box for a missing letter.
bool PangoShapedText::hasPlainGlyphs() const
{
    const auto isPlain = [](const PangoGlyphInfo& info) {
        return (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) == 0 && info.geometry.y_offset == 0;
    };
    for (const auto* line : linesOf(m_layout.get())) {
        for (const auto* item : itemsOf(line)) {
            const std::span glyphs(item->glyphs->glyphs, static_cast<std::size_t>(item->glyphs->num_glyphs));
            if (!isOfSeparateLetters(item->item) || !PANGO_IS_CAIRO_FONT(item->item->analysis.font)
                || !std::ranges::all_of(glyphs, isPlain))
                return false;
        }
    }
    return true;
}

void PangoShapedText::addGlyphs(Mask& mask, std::size_t line, double scale, int baseline) const
{
    constexpr int places = GlyphMasks::places;
    int x = 0;
    for (const auto* item : itemsOf(linesOf(m_layout.get()).at(line))) {
        for (int i = 0; i < item->glyphs->num_glyphs; ++i) {
            const auto& info = item->glyphs->glyphs[i];
            const double at = (lines[line].x + points(x + info.geometry.x_offset)) * scale - mask.left;
            const auto place = static_cast<int>(std::lround(at * places));
            x += info.geometry.width;
            if (info.glyph == PANGO_GLYPH_EMPTY)
                continue;
            const int rest = ((place % places) + places) % places;
            add(m_glyphs->find(
                    item->item->analysis.font, info.glyph, scale * m_layoutScale, static_cast<unsigned>(rest)),
                mask.coverage.get(), (place - rest) / places, baseline - mask.top);
        }
    }
}

PangoShapedText::Mask PangoShapedText::drawnMask(double scale, std::size_t run) const
{
    const auto all = linesOf(m_layout.get());
    const auto baseline = [&](std::size_t line) { return std::round(m_baselines[line] * scale); };
    double left = 0, top = 0, right = 0, bottom = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto ink = inkOf(all[i]);
        const double x = (lines[i].x + points(ink.x)) * scale;
        const double y = baseline(i) + points(ink.y) * scale;
        left = i == 0 ? x : std::min(left, x);
        top = i == 0 ? y : std::min(top, y);
        right = std::max(i == 0 ? x : right, x + points(ink.width) * scale);
        bottom = std::max(i == 0 ? y : bottom, y + points(ink.height) * scale);
    }
    Mask mask { nullptr, static_cast<int>(std::floor(left)) - 1, static_cast<int>(std::floor(top)) - 1 };
    mask.coverage.reset(cairo_image_surface_create(CAIRO_FORMAT_A8, static_cast<int>(std::ceil(right)) + 1 - mask.left,
        static_cast<int>(std::ceil(bottom)) + 1 - mask.top));
    if (run == allRuns && hasPlainGlyphs()) {
        cairo_surface_flush(mask.coverage.get());
        for (std::size_t i = 0; i < all.size(); ++i)
            addGlyphs(mask, i, scale, static_cast<int>(baseline(i)));
        cairo_surface_mark_dirty(mask.coverage.get());
        return mask;
    }
    const CairoHandle context(cairo_create(mask.coverage.get()));
    for (std::size_t i = 0; i < all.size(); ++i) {
        cairo_identity_matrix(context.get());
        cairo_translate(context.get(), lines[i].x * scale - mask.left, baseline(i) - mask.top);
        cairo_scale(context.get(), scale * m_layoutScale, scale * m_layoutScale);
        cairo_move_to(context.get(), 0, 0);
        if (run == allRuns)
            pango_cairo_layout_line_path(context.get(), all[i]);
        else
            addOutlines(context.get(), i, run);
    }
    cairo_fill(context.get());
    return mask;
}

const PangoShapedText::Mask& PangoShapedText::maskOf(double scale, std::size_t run) const
{
    if (scale != m_maskScale) {
        m_masks.clear();
        m_masks.resize(m_runEnds.size() + 1);
        m_maskScale = scale;
    }
    auto& mask = m_masks[run == allRuns ? m_runEnds.size() : run];
    if (!mask.coverage)
        mask = drawnMask(scale, run);
    return mask;
}

void PangoShapedText::show(cairo_t* context) const
{
    const auto all = linesOf(m_layout.get());
    for (std::size_t i = 0; i < all.size(); ++i) {
        cairo_save(context);
        cairo_translate(context, lines[i].x, m_baselines[i]);
        cairo_scale(context, m_layoutScale, m_layoutScale);
        cairo_move_to(context, 0, 0);
        pango_cairo_show_layout_line(context, all[i]);
        cairo_restore(context);
    }
}

}
