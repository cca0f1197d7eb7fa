#include "WidgetHost/Windows/FacePainter.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

#include "OrvelPlatform/Drawing/Handles.h"
#include "Tests/WidgetHost/Windows/Faces.h"

#include <gtk/gtk.h>

namespace orvel::tests {

namespace {

/// A window as it is painted on a screen of some scale, without a frame.
class PaintedWindow {
public:
    PaintedWindow(const WidgetFace& face, double scale, bool isComposited = true)
        : m_face(face)
        , m_isComposited(isComposited)
        , m_geometry(windowGeometry(face, scale, isComposited))
        , m_surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(m_geometry.window.width * scale),
              static_cast<int>(m_geometry.window.height * scale)))
    {
        cairo_surface_set_device_scale(m_surface.get(), scale, scale);
        repaint({ {}, m_geometry.window }, { 1, 0, 1, 1 }); // what was there before
    }

    /// Once more, the part within some points of the window; before, they are filled.
    void repaint(const Rect& part, const Color& before)
    {
        const CairoHandle context(cairo_create(m_surface.get()));
        cairo_rectangle(context.get(), part.x, part.y, part.width, part.height);
        cairo_clip(context.get());
        cairo_set_source_rgb(context.get(), before.red, before.green, before.blue);
        cairo_paint(context.get());
        paint(context.get(),
            { .face = m_face,
                .geometry = m_geometry,
                .ground = cardGround(m_face, m_isComposited),
                .frame = nullptr,
                .pictures = {},
                .isRingedInside = false,
                .pressed = std::nullopt });
        cairo_surface_flush(m_surface.get());
    }

    /// In pixels from the card's corner.
    std::uint32_t at(int x, int y) const
    {
        const int room = static_cast<int>(m_geometry.card.x * m_geometry.scale);
        const auto* row = cairo_image_surface_get_data(m_surface.get())
            + (y + room) * cairo_image_surface_get_stride(m_surface.get());
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, row + (x + room) * 4, sizeof pixel);
        return pixel;
    }

    std::string pixels() const
    {
        const auto* first = reinterpret_cast<const char*>(cairo_image_surface_get_data(m_surface.get()));
        return { first,
            static_cast<std::size_t>(cairo_image_surface_get_stride(m_surface.get()))
                * static_cast<std::size_t>(cairo_image_surface_get_height(m_surface.get())) };
    }

private:
    const WidgetFace& m_face;
    bool m_isComposited;
    WindowGeometry m_geometry;
    SurfaceHandle m_surface;
};

/// No two neighbours are alike, so that a shift or a mixture by part of a pixel shows.
std::uint32_t chequered(std::uint32_t x, std::uint32_t y)
{
    return 0xFF000000U | ((x * 37 + y * 101) & 0xFFU) << 16U | ((x ^ y) & 1U ? 0xFFU : 0U);
}

TEST(Pictures, areCopiedPixelByPixelAtEveryScale)
{
    for (const std::uint32_t scale : { 1U, 2U, 3U }) {
        for (const double letters : { 1.0, 1.13 }) {
            const Size size { 120 * letters, 90 * letters };
            const auto drawn = picture(static_cast<std::uint32_t>(std::ceil(size.width * scale)),
                static_cast<std::uint32_t>(std::ceil(size.height * scale)), &chequered);
            const int width = static_cast<int>(drawn.width), height = static_cast<int>(drawn.height);
            auto shown = face(size, shared(picture(drawn.width, drawn.height, &chequered)));
            shown.pointScale = letters;
            const PaintedWindow window(shown, scale);
            const int corner = static_cast<int>(24 * letters * scale) + 1;
            int differing = 0;
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    const bool isInCorner = (x < corner || x >= width - corner) && (y < corner || y >= height - corner);
                    const auto expected = chequered(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y));
                    differing += !isInCorner && window.at(x, y) != expected;
                }
            }
            EXPECT_EQ(differing, 0) << scale << ", letters " << letters;
            EXPECT_EQ(window.at(0, 0), 0U) << "a corner shows the desktop";
            EXPECT_EQ(window.at(-1, height / 2), 0U) << "and so does what is round the card";
        }
    }
}

TEST(Pictures, fillTheirWindowWhereNothingShinesThrough)
{
    const PaintedWindow window(face({ 120, 90 }, shared(picture(120, 90, &chequered))), 1, false);
    EXPECT_EQ(window.at(0, 0), chequered(0, 0));
    EXPECT_EQ(window.at(119, 89), chequered(119, 89));
}

TEST(Pictures, lookTheSamePaintedInParts)
{
    constexpr double room = WindowGeometry::roomForShadow;
    const Rect parts[] = {
        { room + 30, room + 30, 40, 20 }, // in the middle
        { room, room + 30, 10, 30 }, // at an end
        { room + 40, 0, 30, 90 + 2 * room }, // across, between the corners
        { room, room, 15, 15 }, // a corner
        { room + 100, room + 50, 40, 60 }, // a corner and what is round it
    };
    auto shown = face({ 120, 90 }, shared(picture(120, 90, &chequered)));
    for (const bool isTinted : { false, true }) {
        if (isTinted)
            shown.tint = WindowTint { { 1, 0, 0 }, { 0, 0, 1 } };
        PaintedWindow window(shown, 1);
        const auto whole = window.pixels();
        for (const auto& part : parts) {
            window.repaint(part, { 0, 1, 0, 1 });
            EXPECT_TRUE(window.pixels() == whole) << part.x << ", " << part.y << (isTinted ? ", tinted" : "");
        }
    }
}

TEST(Pictures, ofAnotherScaleStillFillTheCard)
{
    const PaintedWindow window(face({ 120, 90 }, shared(picture(120, 90, [](auto, auto) { return 0xFF102030U; }))), 2);
    EXPECT_EQ(window.at(239, 90), 0xFF102030U);
    EXPECT_EQ(window.at(120, 179), 0xFF102030U);
}

TEST(TintedPictures, takeTheirColoursFromTheDesktop)
{
    auto drawn = picture(120, 90);
    drawn.layers.clear();
    drawn.layers.push_back(layer("default", 120, 90, [](auto x, auto) { return x < 60 ? 0xFFFFFFFFU : 0U; }));
    drawn.layers.push_back(layer("accent", 120, 90, [](auto x, auto) { return x < 60 ? 0U : 0x80808080U; }));
    auto shown = face({ 120, 90 }, shared(std::move(drawn)));
    shown.look = ChosenLook::clear;
    shown.tint = WindowTint { { 1, 0, 0 }, { 0, 0, 1 } };
    const PaintedWindow window(shown, 1);
    EXPECT_EQ(window.at(30, 45), 0xFFFF0000U);
    EXPECT_EQ(window.at(90, 45), 0x80000080U) << "half covered: the desktop shines through";
}

}

}
