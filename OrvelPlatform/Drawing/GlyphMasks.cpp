#include "OrvelPlatform/Drawing/GlyphMasks.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <pango/pangocairo.h>
#include <utility>

namespace orvel {

namespace {

constexpr std::size_t mostKept = 2048; // glyphs: about a megabyte
constexpr double places = 256; // in a pixel; as finely as the drawing library itself places points

GlyphMasks::Mask drawn(PangoFont* font, std::uint32_t glyph, double scale, unsigned place)
{
    PangoRectangle ink;
    pango_font_get_glyph_extents(font, glyph, &ink, nullptr);
    if (ink.width <= 0 || ink.height <= 0)
        return { nullptr, 0, 0 };
    const auto pixels = [&](int units) { return static_cast<double>(units) / PANGO_SCALE * scale; };
    const double from = place / places;
    const int left = static_cast<int>(std::floor(pixels(ink.x) + from)) - 1;
    const int top = static_cast<int>(std::floor(pixels(ink.y))) - 1;
    const int right = static_cast<int>(std::ceil(pixels(ink.x + ink.width) + from)) + 1;
    const int bottom = static_cast<int>(std::ceil(pixels(ink.y + ink.height))) + 1;
    GlyphMasks::Mask mask { SurfaceHandle(cairo_image_surface_create(CAIRO_FORMAT_A8, right - left, bottom - top)),
        left, top };
    const CairoHandle context(cairo_create(mask.coverage.get()));
    cairo_translate(context.get(), from - left, -top);
    cairo_scale(context.get(), scale, scale);
    cairo_set_scaled_font(context.get(), pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font)));
    const cairo_glyph_t one { glyph, 0, 0 };
    cairo_glyph_path(context.get(), &one, 1);
    cairo_fill(context.get());
    cairo_surface_flush(mask.coverage.get());
    return mask;
}

struct Pixels {
    unsigned char* bytes;
    int width;
    int height;
    int stride;

    explicit Pixels(cairo_surface_t* surface)
        : bytes(cairo_image_surface_get_data(surface))
        , width(cairo_image_surface_get_width(surface))
        , height(cairo_image_surface_get_height(surface))
        , stride(cairo_image_surface_get_stride(surface))
    {
    }
    unsigned char* row(int y) const { return bytes + static_cast<std::ptrdiff_t>(y) * stride; }
};

}

struct GlyphMasks::Font {
    struct Release {
        void operator()(PangoFont* font) const { g_object_unref(font); }
    };

    std::unique_ptr<PangoFont, Release> font;
    std::unordered_map<Key, Mask, Hash> masks;
};

GlyphMasks::GlyphMasks() = default;
GlyphMasks::~GlyphMasks() = default;

std::size_t GlyphMasks::Hash::operator()(const Key& key) const
{
    constexpr std::size_t golden = 0x9e3779b97f4a7c15; // spreads the bits of small numbers
    return ((std::bit_cast<std::size_t>(key.scale) ^ key.glyph) * golden ^ key.place) * golden;
}

const GlyphMasks::Mask& GlyphMasks::find(PangoFont* font, std::uint32_t glyph, double scale, unsigned place)
{
    if (m_count >= mostKept) {
        m_fonts.clear();
        m_count = 0;
    }
    auto& known = m_fonts[font];
    if (!known) {
        known = std::make_unique<Font>();
        known->font.reset(PANGO_FONT(g_object_ref(font)));
    }
    const Key key { glyph, place, scale };
    if (const auto found = known->masks.find(key); found != known->masks.end())
        return found->second;
    ++m_count;
    return known->masks.emplace(key, drawn(font, glyph, scale, place)).first->second;
}

void add(const GlyphMasks::Mask& glyph, cairo_surface_t* to, int x, int y)
{
    if (!glyph.coverage)
        return;
    const Pixels from(glyph.coverage.get());
    const Pixels target(to);
    const int left = x + glyph.left, top = y + glyph.top;
    const int firstColumn = std::max(-left, 0), endColumn = std::min(from.width, target.width - left);
    for (int row = std::max(-top, 0); row < std::min(from.height, target.height - top); ++row) {
        const auto* const source = from.row(row);
        auto* const sum = target.row(top + row) + left;
        for (int column = firstColumn; column < endColumn; ++column)
            sum[column] = static_cast<unsigned char>(std::min(sum[column] + source[column], 255));
    }
}

}
