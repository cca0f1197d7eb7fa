#include "OrvelPlatform/Drawing/GlyphMasks.h"

#include <algorithm>
#include <bit>
#include <cairo-ft.h>
#include <cmath>
#include <ft2build.h>
#include <optional>
#include <pango/pangocairo.h>
#include <pango/pangofc-font.h>
#include <utility>

#include "OrvelPlatform/Drawing/Handles.h"

#include FT_OUTLINE_H

namespace orvel {

namespace {

using Mask = GlyphMasks::Mask;

constexpr std::size_t mostKept = 2048; // glyphs: about a megabyte
constexpr FT_Pos pixel = GlyphMasks::places; // in the rasteriser's unit

/// A font's typeface, for itself alone until the lock ends.
class FaceLock {
public:
    explicit FaceLock(cairo_scaled_font_t* font) : m_font(font), m_face(cairo_ft_scaled_font_lock_face(font)) { }
    FaceLock(const FaceLock&) = delete;
    FaceLock& operator=(const FaceLock&) = delete;
    ~FaceLock()
    {
        if (m_face)
            cairo_ft_scaled_font_unlock_face(m_font);
    }

    FT_Face face() const { return m_face; }

private:
    cairo_scaled_font_t* m_font;
    FT_Face m_face;
};

/// Whether the font's glyphs are its typeface's outlines as they are: nothing that stands in for a bold or slanted
/// face.
bool isPlain(PangoFont* font)
{
    if (!PANGO_IS_FC_FONT(font))
        return false;
    auto* const pattern = pango_fc_font_get_pattern(PANGO_FC_FONT(font));
    FcBool isEmboldened = FcFalse;
    FcMatrix* slant = nullptr;
    FcPatternGetBool(pattern, FC_EMBOLDEN, 0, &isEmboldened);
    return isEmboldened == FcFalse && FcPatternGetMatrix(pattern, FC_MATRIX, 0, &slant) != FcResultMatch;
}

Mask rasterised(FT_Library library, FT_Outline& outline)
{
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    const auto down = [](FT_Pos at) { return static_cast<int>(std::floor(static_cast<double>(at) / pixel)); };
    const auto up = [](FT_Pos at) { return static_cast<int>(std::ceil(static_cast<double>(at) / pixel)); };
    const int left = down(box.xMin), bottom = down(box.yMin), width = up(box.xMax) - left,
              height = up(box.yMax) - bottom;
    if (width <= 0 || height <= 0)
        return {};
    Mask mask { std::vector<std::uint8_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)), width,
        left, -bottom - height };
    FT_Outline_Translate(&outline, -left * pixel, -bottom * pixel);
    FT_Bitmap bitmap {};
    bitmap.rows = static_cast<unsigned>(height);
    bitmap.width = static_cast<unsigned>(width);
    bitmap.pitch = width;
    bitmap.buffer = mask.coverage.data();
    bitmap.num_grays = 256;
    bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
    return FT_Outline_Get_Bitmap(library, &outline, &bitmap) == 0 ? std::move(mask) : Mask {};
}

/// The glyph's outline in the typeface's own units, enlarged in one step. Absent where it has no such outline.
std::optional<Mask> drawnDirectly(cairo_scaled_font_t* font, std::uint32_t glyph, double scale, unsigned place)
{
    const FaceLock lock(font);
    auto* const face = lock.face();
    if (!face || !FT_IS_SCALABLE(face) || FT_IS_TRICKY(face) || FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0
        || face->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
        return std::nullopt;
    cairo_matrix_t size;
    cairo_scaled_font_get_font_matrix(font, &size);
    constexpr double one = 0x10000; // in the matrix
    const auto enlarged =
        static_cast<FT_Fixed>(std::lround(size.xx * scale * static_cast<double>(pixel) / face->units_per_EM * one));
    const FT_Matrix matrix { enlarged, 0, 0, enlarged };
    auto& outline = face->glyph->outline;
    FT_Outline_Transform(&outline, &matrix);
    FT_Outline_Translate(&outline, static_cast<FT_Pos>(place), 0);
    return rasterised(face->glyph->library, outline);
}

/// What any font can do.
Mask drawnAsPath(PangoFont* font, std::uint32_t glyph, double scale, unsigned place)
{
    PangoRectangle ink;
    pango_font_get_glyph_extents(font, glyph, &ink, nullptr);
    if (ink.width <= 0 || ink.height <= 0)
        return {};
    const auto pixels = [&](int units) { return static_cast<double>(units) / PANGO_SCALE * scale; };
    const double from = static_cast<double>(place) / GlyphMasks::places;
    const int left = static_cast<int>(std::floor(pixels(ink.x) + from)) - 1;
    const int top = static_cast<int>(std::floor(pixels(ink.y))) - 1;
    const int right = static_cast<int>(std::ceil(pixels(ink.x + ink.width) + from)) + 1;
    const int bottom = static_cast<int>(std::ceil(pixels(ink.y + ink.height))) + 1;
    const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_A8, right - left, bottom - top));
    const CairoHandle context(cairo_create(surface.get()));
    cairo_translate(context.get(), from - left, -top);
    cairo_scale(context.get(), scale, scale);
    cairo_set_scaled_font(context.get(), pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font)));
    const cairo_glyph_t one { glyph, 0, 0 };
    cairo_glyph_path(context.get(), &one, 1);
    cairo_fill(context.get());
    cairo_surface_flush(surface.get());
    Mask mask { {}, right - left, left, top };
    const auto* const bytes = cairo_image_surface_get_data(surface.get());
    for (int row = 0; row < bottom - top; ++row) {
        const auto* const begin =
            bytes + static_cast<std::ptrdiff_t>(row) * cairo_image_surface_get_stride(surface.get());
        mask.coverage.insert(mask.coverage.end(), begin, begin + mask.width);
    }
    return mask;
}

Mask drawn(PangoFont* font, std::uint32_t glyph, double scale, unsigned place)
{
    auto* const scaled = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
    if (auto direct = isPlain(font) ? drawnDirectly(scaled, glyph, scale, place) : std::nullopt)
        return *std::move(direct);
    return drawnAsPath(font, glyph, scale, place);
}

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
    if (glyph.width == 0)
        return;
    auto* const bytes = cairo_image_surface_get_data(to);
    const int stride = cairo_image_surface_get_stride(to);
    const int left = x + glyph.left, top = y + glyph.top;
    const int height = static_cast<int>(glyph.coverage.size()) / glyph.width;
    const int firstColumn = std::max(-left, 0),
              endColumn = std::min(glyph.width, cairo_image_surface_get_width(to) - left);
    for (int row = std::max(-top, 0); row < std::min(height, cairo_image_surface_get_height(to) - top); ++row) {
        const auto* const source = glyph.coverage.data() + static_cast<std::ptrdiff_t>(row) * glyph.width;
        auto* const sum = bytes + static_cast<std::ptrdiff_t>(top + row) * stride + left;
        for (int column = firstColumn; column < endColumn; ++column)
            sum[column] = static_cast<unsigned char>(std::min(sum[column] + source[column], 255));
    }
}

}
