#include "OrvelPlatform/Drawing/PangoParagraph.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <pango/pangocairo.h>
#include <utility>

namespace orvel {

namespace {

/// No picture shows more; what comes from outside may be of any length.
constexpr std::size_t longestText = 16 * 1024;

const char* nameOf(FontFamily family)
{
    return family == FontFamily::rounded ? "Nunito" : "Source Serif 4";
}

struct Release {
    void operator()(PangoAttrList* attributes) const { pango_attr_list_unref(attributes); }
    void operator()(gchar* text) const { g_free(text); }
    void operator()(PangoLayoutIter* place) const { pango_layout_iter_free(place); }
};

bool isControl(char byte)
{
    constexpr unsigned char space = 0x20, rubout = 0x7f;
    return static_cast<unsigned char>(byte) < space || static_cast<unsigned char>(byte) == rubout;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// One paragraph of sound UTF-8.
std::string cleaned(std::string_view text)
{
    const std::unique_ptr<gchar, Release> valid(
        g_utf8_make_valid(text.data(), static_cast<gssize>(std::min(text.size(), longestText))));
    std::string line(valid.get());
    std::ranges::replace_if(line, isControl, ' ');
    for (const std::string_view separator : { "\u0085", "\u2028", "\u2029" })
        replaceAll(line, separator, " ");
    // The rounded face has no narrow space, and what stands in for it leaves next to none between "9:05" and "AM".
    replaceAll(line, "\u202F", "\u00A0");
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
    insert(list, pango_attr_font_desc_new(fontDescription(style).get()), begin, end);
    if (style.tracking != 0)
        insert(list, pango_attr_letter_spacing_new(pangoUnits(style.tracking)), begin, end);
    if (style.tabularDigits)
        insert(list, pango_attr_font_features_new("tnum=1"), begin, end);
}

std::unique_ptr<PangoAttrList, Release> attributes(const TextBlock& block)
{
    std::unique_ptr<PangoAttrList, Release> list(pango_attr_list_new());
    std::size_t begin = 0;
    for (const auto& run : block.runs) {
        style(list.get(), run.style, begin, begin + run.text.size());
        begin += run.text.size();
    }
    return list;
}

/// Calls `with` for every run of the layout; its place in the text comes with it.
template <typename With>
void forEachRun(PangoLayout* layout, const With& with)
{
    const std::unique_ptr<PangoLayoutIter, Release> place(pango_layout_get_iter(layout));
    do {
        if (const auto* run = pango_layout_iter_get_run_readonly(place.get()))
            with(*run, static_cast<std::size_t>(run->item->offset));
    } while (pango_layout_iter_next_run(place.get()));
}

/// Where the letters begin that no typeface has, from the last to the first.
std::vector<std::size_t> missingLetters(PangoLayout* layout)
{
    std::vector<std::size_t> places;
    forEachRun(layout, [&](const PangoGlyphItem& run, std::size_t offset) {
        for (int i = 0; i < run.glyphs->num_glyphs; ++i) {
            if ((run.glyphs->glyphs[i].glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0)
                places.push_back(offset + static_cast<std::size_t>(run.glyphs->log_clusters[i]));
        }
    });
    std::ranges::sort(places, std::greater());
    places.erase(std::ranges::unique(places).begin(), places.end());
    return places;
}

/// Where the ellipsis begins that a layout put in place of words.
std::size_t ellipsisIn(PangoLayout* layout)
{
    std::size_t place = 0;
    forEachRun(layout, [&](const PangoGlyphItem& run, std::size_t offset) {
        if ((run.item->analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS) != 0)
            place = offset;
    });
    return place;
}

gunichar letterAt(const std::string& text, std::size_t place)
{
    return place < text.size() ? g_utf8_get_char(text.c_str() + place) : 0;
}

std::size_t before(const std::string& text, std::size_t place)
{
    return static_cast<std::size_t>(g_utf8_prev_char(text.c_str() + place) - text.c_str());
}

bool joins(gunichar letter)
{
    if (!g_unichar_isalpha(letter) && !g_unichar_ismark(letter))
        return false;
    switch (g_unichar_get_script(letter)) {
    case G_UNICODE_SCRIPT_ARABIC:
    case G_UNICODE_SCRIPT_SYRIAC:
    case G_UNICODE_SCRIPT_MONGOLIAN:
    case G_UNICODE_SCRIPT_NKO:
    case G_UNICODE_SCRIPT_INHERITED:
        return true;
    default:
        return false;
    }
}

bool separates(gunichar letter)
{
    constexpr gunichar middleDot = 0xb7, wordJoiner = 0x2060, arabicComma = 0x60c;
    return g_unichar_isspace(letter) || letter == ',' || letter == arabicComma || letter == middleDot
        || letter == wordJoiner || g_unichar_type(letter) == G_UNICODE_DASH_PUNCTUATION;
}

/// Where a text that is cut at a place is better cut: there or before.
std::size_t goodCut(const std::string& text, std::size_t place)
{
    auto cut = place;
    if (joins(letterAt(text, cut))) {
        while (cut > 0 && joins(letterAt(text, before(text, cut))))
            cut = before(text, cut);
    }
    while (cut > 0 && separates(letterAt(text, before(text, cut))))
        cut = before(text, cut);
    return cut > 0 ? cut : place;
}

}

void FontDescriptionRelease::operator()(PangoFontDescription* description) const
{
    pango_font_description_free(description);
}

FontDescription fontDescription(const TextStyle& style)
{
    FontDescription font(pango_font_description_new());
    pango_font_description_set_family_static(font.get(), nameOf(style.family));
    pango_font_description_set_weight(font.get(), static_cast<PangoWeight>(style.weight));
    pango_font_description_set_style(font.get(), style.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(font.get(), pangoUnits(style.size));
    return font;
}

int pangoUnits(double points)
{
    constexpr double most = 1e6; // far beyond any picture, far within an int
    return static_cast<int>(std::lround(std::min(points, most) * PANGO_SCALE));
}

PangoParagraph::PangoParagraph(TextBlock block) : m_block(std::move(block))
{
    for (auto& run : m_block.runs)
        run.text = cleaned(run.text);
}

Handle<PangoLayout> PangoParagraph::uncut(PangoContext* context) const
{
    Handle<PangoLayout> layout(pango_layout_new(context));
    const auto words = text();
    pango_layout_set_font_description(layout.get(), fontDescription(m_block.runs.front().style).get());
    pango_layout_set_text(layout.get(), words.c_str(), static_cast<int>(words.size()));
    pango_layout_set_attributes(layout.get(), attributes(m_block).get());
    return layout;
}

Handle<PangoLayout> PangoParagraph::layout(double width, PangoContext* context) const
{
    auto layout = uncut(context);
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    if (std::isfinite(width)) {
        // A line's width leaves out the tracking after its last letter; where lines break it counts.
        const double trackingRoom = std::max(m_block.runs.back().style.tracking, 0.0);
        pango_layout_set_width(layout.get(), pangoUnits(std::max(width, 0.0) + trackingRoom));
    }
    if (m_block.lineLimit > 0) {
        pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
        pango_layout_set_height(layout.get(), -m_block.lineLimit);
    }
    return layout;
}

std::string PangoParagraph::text() const
{
    std::string words;
    for (const auto& run : m_block.runs)
        words += run.text;
    return words;
}

std::vector<std::size_t> PangoParagraph::runEnds() const
{
    std::vector<std::size_t> ends;
    for (std::size_t end = 0; const auto& run : m_block.runs)
        ends.push_back(end += run.text.size());
    return ends;
}

PangoParagraph PangoParagraph::replacing(std::size_t begin, std::size_t end, std::string_view with) const
{
    auto changed = *this;
    std::size_t start = 0;
    for (auto& run : changed.m_block.runs) {
        const auto length = run.text.size();
        const auto from = std::clamp(begin, start, start + length) - start;
        const auto to = std::clamp(end, start, start + length) - start;
        const bool isFirst = begin >= start && begin < start + length;
        run.text.replace(from, to - from, isFirst ? with : std::string_view());
        start += length;
    }
    return changed;
}

PangoParagraph PangoParagraph::withoutMissingLetters(PangoLayout* layout, std::string_view mark) const
{
    const auto words = text();
    auto changed = *this;
    const auto places = missingLetters(layout);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto end = static_cast<std::size_t>(g_utf8_next_char(words.c_str() + places[i]) - words.c_str());
        const bool goesOn = i + 1 < places.size() && before(words, places[i]) == places[i + 1];
        changed = changed.replacing(places[i], end, goesOn ? std::string_view() : mark);
    }
    return changed;
}

std::optional<PangoParagraph> PangoParagraph::cutWell(PangoLayout* layout) const
{
    const auto words = text();
    const auto place = ellipsisIn(layout);
    const auto cut = goodCut(words, place);
    if (cut == place)
        return std::nullopt;
    return replacing(cut, words.size(), "…");
}

}
