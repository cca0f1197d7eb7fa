#include "OrvelPlatform/Drawing/PangoTextSystem.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <hb.h>
#include <memory>
#include <pango/pangocairo.h>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "OrvelPlatform/Drawing/PangoParagraph.h"
#include "OrvelPlatform/Drawing/PangoShapedText.h"
#include "OrvelPlatform/Views/Extent.h"

namespace orvel {

namespace {

/// Paragraphs in one generation of what is kept: all that a few widgets show in a day.
constexpr std::size_t mostKept = 512;
constexpr std::size_t mostSets = 32; // ways to set one paragraph

struct Release {
    void operator()(PangoFont* font) const { g_object_unref(font); }
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
};

/// The fewest fonts that may have the block's letters.
FontSupply leastSupply(const TextBlock& block)
{
    const auto isCommon = [](const TextRun& run) {
        return run.style.family == FontFamily::rounded
            && std::ranges::find(roundedWeights, run.style.weight) != roundedWeights.end();
    };
    return std::ranges::all_of(block.runs, isCommon) ? FontSupply::rounded : FontSupply::own;
}

/// The library looks for a typeface anew, in two threads, and measures a sample text with it for each size that it is
/// asked for. Letters that are not fitted to pixels are alike in all sizes, so that every paragraph is laid out with
/// its first letters in one size, and all its lengths are taken so many times.
double layoutScale(const TextBlock& block)
{
    constexpr double sizeInLayouts = 32;
    const double size = block.runs.front().style.size;
    return size > 0 ? size / sizeInLayouts : 1;
}

TextBlock enlarged(TextBlock block, double by)
{
    for (auto& run : block.runs) {
        run.style.size *= by;
        run.style.tracking *= by;
    }
    return block;
}

bool isWhole(PangoLayout* layout)
{
    return pango_layout_get_unknown_glyphs_count(layout) == 0;
}

bool fits(PangoLayout* layout, int width, int lineCount)
{
    pango_layout_set_width(layout, width);
    int widest = 0;
    pango_layout_get_size(layout, &widest, nullptr);
    return pango_layout_get_line_count(layout) == lineCount && widest <= width
        && pango_layout_is_ellipsized(layout) == FALSE;
}

/// The narrowest width that takes no more lines and breaks no word.
void balance(PangoLayout* layout)
{
    const int lineCount = pango_layout_get_line_count(layout);
    if (lineCount < 2 || pango_layout_is_ellipsized(layout))
        return;
    constexpr int precision = PANGO_SCALE / 2;
    pango_layout_set_wrap(layout, PANGO_WRAP_WORD);
    int enough = pango_layout_get_width(layout);
    int tooNarrow = enough / (lineCount + 1);
    while (enough - tooNarrow > precision) {
        const int middle = tooNarrow + (enough - tooNarrow) / 2;
        (fits(layout, middle, lineCount) ? enough : tooNarrow) = middle;
    }
    pango_layout_set_width(layout, enough);
    pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
}

std::unique_ptr<PangoFont, Release> fontOf(PangoLayout* layout, const TextStyle& style)
{
    const auto* const run = pango_layout_get_line_readonly(layout, 0)->runs;
    if (run) {
        auto* const font = static_cast<PangoGlyphItem*>(run->data)->item->analysis.font;
        const FontDescription found(pango_font_describe(font));
        const auto wanted = fontDescription(style);
        const std::string_view family = pango_font_description_get_family(wanted.get());
        if (family == pango_font_description_get_family(found.get()))
            return std::unique_ptr<PangoFont, Release>(PANGO_FONT(g_object_ref(font)));
    }
    auto* const context = pango_layout_get_context(layout);
    return std::unique_ptr<PangoFont, Release>(pango_context_load_font(context, fontDescription(style).get()));
}

std::size_t mixed(std::size_t seed, std::size_t value)
{
    constexpr std::size_t golden = 0x9e3779b97f4a7c15; // spreads the bits of small numbers
    return (seed ^ value) * golden;
}

}

std::size_t PangoTextSystem::Hash::operator()(const TextBlock& block) const
{
    auto seed = static_cast<std::size_t>(block.direction);
    for (const auto& run : block.runs) {
        seed = mixed(seed, std::hash<std::string> {}(run.text));
        seed = mixed(seed, std::hash<double> {}(run.style.size + run.style.weight));
    }
    return seed;
}

PangoTextSystem::PangoTextSystem(const std::filesystem::path& folder, FontScope scope) : m_fonts(folder, scope) { }

std::shared_ptr<const ShapedText> PangoTextSystem::shape(const TextBlock& block, double width)
{
    auto& kept = keptOf(block);
    if (kept.inOneLine->size.width <= width)
        return kept.inOneLine;
    const auto fits = [&](const Set& set) {
        return set.lineLimit == block.lineLimit && set.alignment == block.alignment && set.balanced == block.balanced
            && set.took <= width && width <= set.offered;
    };
    if (const auto known = std::ranges::find_if(kept.sets, fits); known != kept.sets.end())
        return known->text;
    if (kept.sets.size() >= mostSets)
        kept.sets.clear();
    auto text = shapeAfresh(block, width);
    kept.sets.push_back(
        { block.lineLimit, block.alignment, block.balanced, std::min(text->size.width, width), width, text });
    return text;
}

PangoTextSystem::Kept& PangoTextSystem::keptOf(const TextBlock& block)
{
    if (const auto known = m_kept.find(block); known != m_kept.end())
        return known->second;
    if (m_kept.size() >= mostKept)
        m_older = std::exchange(m_kept, {});
    if (const auto known = m_older.find(block); known != m_older.end())
        return m_kept.insert(m_older.extract(known)).position->second;
    // A line by itself is the same for every limit and alignment.
    const TextBlock inOneLine { .runs = block.runs, .direction = block.direction, .language = block.language };
    return m_kept.emplace(inOneLine, Kept { shapeAfresh(inOneLine, infiniteLength), {} }).first->second;
}

PangoTextSystem::Shown PangoTextSystem::shown(const TextBlock& block, double width)
{
    PangoParagraph paragraph(block);
    PangoContext* context = nullptr;
    Handle<PangoLayout> layout;
    for (const auto supply : { FontSupply::rounded, FontSupply::own, FontSupply::all }) {
        if (supply < leastSupply(block))
            continue;
        context = m_fonts.context(supply, block.direction, block.language);
        layout = paragraph.layout(width, context);
        if (isWhole(layout.get()))
            return { std::move(paragraph), context, std::move(layout) };
    }
    const auto all = paragraph.uncut(context);
    for (const std::string_view mark : { "□", "–" }) {
        auto marked = paragraph.withoutMissingLetters(all.get(), mark);
        layout = marked.layout(width, context);
        if (isWhole(layout.get()))
            return { std::move(marked), context, std::move(layout) };
    }
    return { std::move(paragraph), context, std::move(layout) };
}

std::shared_ptr<const ShapedText> PangoTextSystem::shapeAfresh(const TextBlock& block, double width)
{
    const double scale = layoutScale(block);
    auto [paragraph, context, layout] = shown(enlarged(block, 1 / scale), width / scale);
    const bool isCut = pango_layout_is_ellipsized(layout.get()) != FALSE;
    if (auto better = isCut ? paragraph.cutWell(layout.get()) : std::nullopt) {
        paragraph = *std::move(better);
        layout = paragraph.layout(width / scale, context);
    }
    if (block.balanced && !isCut && std::isfinite(width))
        balance(layout.get());
    const auto& style = block.runs.front().style;
    const auto [ascent, descent] = heights(style, layout.get());
    auto text =
        std::make_shared<PangoShapedText>(PangoShapedText::Set { std::move(layout), scale, paragraph.runEnds() }, block,
            ascent * style.size, descent * style.size, m_glyphs);
    text->isCut = isCut;
    return text;
}

PangoTextSystem::Heights PangoTextSystem::heights(const TextStyle& style, PangoLayout* layout)
{
    const std::tuple face(style.family, style.weight, style.italic);
    if (const auto found = m_heights.find(face); found != m_heights.end())
        return found->second;
    // The typeface in its own units. The text's own font will do; another would have to be found and opened, each in
    // two threads of the library.
    const auto font = fontOf(layout, style);
    hb_font_extents_t extents {};
    double unitsInSize = 1;
    if (font) {
        auto* const typeface = hb_font_get_face(pango_font_get_hb_font(font.get()));
        const std::unique_ptr<hb_font_t, Release> own(hb_font_create(typeface));
        hb_font_get_h_extents(own.get(), &extents);
        unitsInSize = hb_face_get_upem(typeface);
    }
    const Heights heights { extents.ascender / unitsInSize, -extents.descender / unitsInSize };
    m_heights.emplace(face, heights);
    return heights;
}

}
