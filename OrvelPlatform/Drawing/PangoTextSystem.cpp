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

#include "OrvelPlatform/Drawing/PangoShapedText.h"
#include "OrvelPlatform/Views/Extent.h"

namespace orvel {

namespace {

/// Paragraphs in one generation of what is kept: all that a few widgets show in a day.
constexpr std::size_t mostKept = 512;
constexpr std::size_t mostSets = 32; // ways to set one paragraph

/// No picture shows more; what comes from outside may be of any length.
constexpr std::size_t longestText = 16 * 1024;

int units(double points)
{
    constexpr double most = 1e6; // far beyond any picture, far within an int
    return static_cast<int>(std::lround(std::min(points, most) * PANGO_SCALE));
}

const char* nameOf(FontFamily family)
{
    return family == FontFamily::rounded ? "Nunito" : "Source Serif 4";
}

struct Release {
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
    void operator()(PangoAttrList* attributes) const { pango_attr_list_unref(attributes); }
    void operator()(gchar* text) const { g_free(text); }
    void operator()(PangoFont* font) const { g_object_unref(font); }
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
};

std::unique_ptr<PangoFontDescription, Release> description(const TextStyle& style)
{
    std::unique_ptr<PangoFontDescription, Release> font(pango_font_description_new());
    pango_font_description_set_family_static(font.get(), nameOf(style.family));
    pango_font_description_set_weight(font.get(), static_cast<PangoWeight>(style.weight));
    pango_font_description_set_style(font.get(), style.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(font.get(), units(style.size));
    return font;
}

bool isControl(char byte)
{
    constexpr unsigned char space = 0x20, rubout = 0x7f;
    return static_cast<unsigned char>(byte) < space || static_cast<unsigned char>(byte) == rubout;
}

/// One paragraph of sound UTF-8.
std::string cleaned(std::string_view text)
{
    const std::unique_ptr<gchar, Release> valid(
        g_utf8_make_valid(text.data(), static_cast<gssize>(std::min(text.size(), longestText))));
    std::string line(valid.get());
    std::ranges::replace_if(line, isControl, ' ');
    for (const std::string_view separator : { "\u0085", "\u2028", "\u2029" }) {
        for (auto at = line.find(separator); at != std::string::npos; at = line.find(separator, at))
            line.replace(at, separator.size(), " ");
    }
    return line;
}

void insert(PangoAttrList* list, PangoAttribute* attribute, std::size_t begin, std::size_t end)
{
    attribute->start_index = static_cast<guint>(begin);
    attribute->end_index = static_cast<guint>(end);
    pango_attr_list_insert(list, attribute);
}

void style(PangoAttrList* list, const TextStyle& style, std::size_t begin, std::size_t end)
{
    insert(list, pango_attr_font_desc_new(description(style).get()), begin, end);
    if (style.tracking != 0)
        insert(list, pango_attr_letter_spacing_new(units(style.tracking)), begin, end);
    if (style.tabularDigits)
        insert(list, pango_attr_font_features_new("tnum=1"), begin, end);
}

/// The runs as one text.
struct Paragraph {
    std::string text;
    std::vector<std::size_t> runEnds;
    std::unique_ptr<PangoAttrList, Release> attributes { pango_attr_list_new() };

    explicit Paragraph(const TextBlock& block)
    {
        for (const auto& run : block.runs) {
            const auto begin = text.size();
            text += cleaned(run.text);
            style(attributes.get(), run.style, begin, text.size());
            runEnds.push_back(text.size());
        }
    }
};

Handle<PangoLayout> layoutOf(const Paragraph& paragraph, const TextBlock& block, double width, PangoContext* context)
{
    Handle<PangoLayout> layout(pango_layout_new(context));
    pango_layout_set_font_description(layout.get(), description(block.runs.front().style).get());
    pango_layout_set_text(layout.get(), paragraph.text.c_str(), static_cast<int>(paragraph.text.size()));
    pango_layout_set_attributes(layout.get(), paragraph.attributes.get());
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    if (std::isfinite(width)) {
        // A line's width leaves out the tracking after its last letter; where lines break it counts.
        const double trackingRoom = std::max(block.runs.back().style.tracking, 0.0);
        pango_layout_set_width(layout.get(), units(std::max(width, 0.0) + trackingRoom));
    }
    if (block.lineLimit > 0) {
        pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
        pango_layout_set_height(layout.get(), -block.lineLimit);
    }
    return layout;
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
        const std::unique_ptr<PangoFontDescription, Release> found(pango_font_describe(font));
        if (std::string_view(pango_font_description_get_family(found.get())) == nameOf(style.family))
            return std::unique_ptr<PangoFont, Release>(PANGO_FONT(g_object_ref(font)));
    }
    auto* const context = pango_layout_get_context(layout);
    return std::unique_ptr<PangoFont, Release>(pango_context_load_font(context, description(style).get()));
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
    const TextBlock inOneLine { .runs = block.runs, .direction = block.direction };
    return m_kept.emplace(inOneLine, Kept { shapeAfresh(inOneLine, infiniteLength), {} }).first->second;
}

std::shared_ptr<const ShapedText> PangoTextSystem::shapeAfresh(const TextBlock& block, double width)
{
    Paragraph paragraph(block);
    auto layout = layoutOf(paragraph, block, width, m_fonts.own(block.direction));
    if (pango_layout_get_unknown_glyphs_count(layout.get()) > 0)
        layout = layoutOf(paragraph, block, width, m_fonts.withSystem(block.direction));
    if (block.balanced && std::isfinite(width))
        balance(layout.get());
    const auto& style = block.runs.front().style;
    const auto [ascent, descent] = heights(style, layout.get());
    return std::make_shared<const PangoShapedText>(
        std::move(layout), block, std::move(paragraph.runEnds), ascent * style.size, descent * style.size, m_glyphs);
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
