#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

struct _PangoFont;
struct _cairo_surface;

namespace orvel {

/// Glyphs as coverage, drawn once for each place within a pixel. A text that differs from one before in a few letters,
/// as a countdown does from minute to minute, is put together from what is there.
class GlyphMasks {
public:
    /// Device pixels; the origin is the glyph's, on the baseline.
    struct Mask {
        std::vector<std::uint8_t> coverage; // row by row
        int width = 0; // 0: nothing is seen
        int left = 0;
        int top = 0;
    };

    static constexpr int places = 64; // in a pixel; as finely as the rasteriser places points

    GlyphMasks();
    ~GlyphMasks();

    /// `place` is where the origin stands within its pixel, in 64ths from 0 on. Valid until the next call.
    const Mask& find(_PangoFont* font, std::uint32_t glyph, double scale, unsigned place);

private:
    struct Key {
        std::uint32_t glyph;
        unsigned place;
        double scale;
        bool operator==(const Key&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };
    struct Font; // keeps its font, so that no other takes its address

    std::unordered_map<_PangoFont*, std::unique_ptr<Font>> m_fonts;
    std::size_t m_count = 0;
};

/// Adds a mask to another at a place in it. Where both cover a pixel the sum counts, at most all of it.
void add(const GlyphMasks::Mask& glyph, _cairo_surface* to, int x, int y);

}
