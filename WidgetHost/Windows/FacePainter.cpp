#include "WidgetHost/Windows/FacePainter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/Palette.h"
#include "OrvelPlatform/Drawing/Handles.h"
#include "WidgetHost/Windows/NineSlices.h"

#include <gtk/gtk.h>

namespace orvel {

namespace {

/// The same as the pixels of an image; they outlive it.
SurfaceHandle image(
    std::span<const std::uint32_t> pixels, std::uint32_t width, std::uint32_t height, std::size_t stride)
{
    // An image that is only painted from is not written.
    auto* const bytes = const_cast<std::uint32_t*>(pixels.data());
    return SurfaceHandle(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(bytes),
        CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height), static_cast<int>(stride)));
}

SurfaceHandle image(const Picture& picture)
{
    return image(picture.layers.front().pixels, picture.width, picture.height, picture.stride());
}

void setColor(cairo_t* context, const Color& color)
{
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

void addRounded(cairo_t* context, const Rect& rect, double radius)
{
    constexpr double quarter = std::numbers::pi / 2;
    const double least = std::min({ radius, rect.width / 2, rect.height / 2 });
    if (least <= 0)
        return cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
    cairo_new_sub_path(context);
    cairo_arc(context, rect.right() - least, rect.y + least, least, -quarter, 0);
    cairo_arc(context, rect.right() - least, rect.bottom() - least, least, 0, quarter);
    cairo_arc(context, rect.x + least, rect.bottom() - least, least, quarter, 2 * quarter);
    cairo_arc(context, rect.x + least, rect.y + least, least, 2 * quarter, 3 * quarter);
    cairo_close_path(context);
}

/// What it paints is in pixels, with 0, 0 at the card's corner, until it ends.
class CardPixels {
public:
    CardPixels(cairo_t* context, const WindowGeometry& geometry) : m_context(context)
    {
        cairo_save(context);
        cairo_translate(context, geometry.card.x, geometry.card.y);
        cairo_scale(context, 1 / geometry.scale, 1 / geometry.scale);
    }
    CardPixels(const CardPixels&) = delete;
    CardPixels& operator=(const CardPixels&) = delete;
    ~CardPixels() { cairo_restore(m_context); }

private:
    cairo_t* m_context;
};

Rect cardInPixels(const WindowGeometry& geometry)
{
    return { 0, 0, std::round(geometry.card.width * geometry.scale),
        std::round(geometry.card.height * geometry.scale) };
}

/// What the context's clip lets through, in the context's units.
Rect clipOf(cairo_t* context)
{
    double left = 0, top = 0, right = 0, bottom = 0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    return { left, top, right - left, bottom - top };
}

bool meet(const Rect& one, const Rect& other)
{
    return one.x < other.right() && other.x < one.right() && one.y < other.bottom() && other.y < one.bottom();
}

/// The radius that has to be drawn: most of what changes lies away from the corners, and rectangles are copied as they
/// are.
double radiusWithin(const Rect& clip, const Rect& card, double radius)
{
    const bool isBetweenSides = clip.x >= radius && clip.right() <= card.width - radius;
    const bool isBetweenEnds = clip.y >= radius && clip.bottom() <= card.height - radius;
    return isBetweenSides || isBetweenEnds ? 0 : radius;
}

/// A layer as a source or a mask over the whole card. Its pixels are copied where it was made for these.
using PatternHandle =
    std::unique_ptr<cairo_pattern_t, decltype([](cairo_pattern_t* pattern) { cairo_pattern_destroy(pattern); })>;
PatternHandle layerPattern(const HostPicture& picture, const MappedPixels& pixels, const Rect& card)
{
    const auto surface = image(pixels.pixels(), picture.width, picture.height, picture.stride);
    PatternHandle pattern(cairo_pattern_create_for_surface(surface.get()));
    const bool isCopied = picture.width == card.width && picture.height == card.height;
    cairo_pattern_set_filter(pattern.get(), isCopied ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    cairo_matrix_t matrix;
    cairo_matrix_init_scale(&matrix, picture.width / card.width, picture.height / card.height);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    return pattern;
}

void paintLayer(
    cairo_t* context, const WidgetFace& face, const HostPicture::Layer& layer, const Rect& card, double radius)
{
    const auto* pixels = std::get_if<MappedPixels>(&layer.content);
    if (!pixels)
        return; // files are for hosts that cannot map memory; this one never asks for them
    const auto pattern = layerPattern(*face.picture, *pixels, card);
    if (!face.tint) {
        addRounded(context, card, radius);
        cairo_set_source(context, pattern.get());
        return cairo_fill(context);
    }
    cairo_save(context);
    addRounded(context, card, radius);
    cairo_clip(context);
    setColor(context, layer.name == "accent" ? face.tint->accent : face.tint->foreground);
    cairo_mask(context, pattern.get());
    cairo_restore(context);
}

void paintFrame(cairo_t* context, const WindowPictures::Frame& frame, const PaintedFace& painted)
{
    const double room = std::round(painted.geometry.card.x * painted.geometry.scale);
    const auto card = cardInPixels(painted.geometry);
    const auto source = image(frame.picture);
    const auto clip = clipOf(context);
    for (const auto& [from, to] : frameSlices(frame.corner, { card.width + 2 * room, card.height + 2 * room })) {
        const Rect place { to.x - room, to.y - room, to.width, to.height };
        if (!meet(place, clip))
            continue;
        cairo_save(context);
        cairo_rectangle(context, place.x, place.y, place.width, place.height);
        cairo_clip(context);
        cairo_translate(context, place.x, place.y);
        cairo_scale(context, place.width / from.width, place.height / from.height);
        cairo_set_source_surface(context, source.get(), -from.x, -from.y);
        cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
        cairo_paint(context);
        cairo_restore(context);
    }
}

void paintPlaced(cairo_t* context, const WindowPictures::Placed& placed, double scale)
{
    const auto source = image(placed.picture);
    cairo_save(context);
    cairo_translate(context, placed.place.x, placed.place.y);
    cairo_scale(context, 1 / scale, 1 / scale);
    cairo_set_source_surface(context, source.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    cairo_paint(context);
    cairo_restore(context);
}

void paintPressed(cairo_t* context, const PaintedFace& painted)
{
    const ColorFlags flags { painted.face.isDark, painted.face.increasesContrast, painted.face.reducesTransparency };
    const auto& button = *painted.pressed;
    addRounded(context, button, button.height / 2);
    // Like every pressed fill it moves towards its background.
    constexpr double pressed = 0.15;
    setColor(context, Palette::bg.rgba(flags).withAlpha(pressed));
    cairo_fill(context);
}

void paintInnerRing(cairo_t* context, const PaintedFace& painted)
{
    const ColorFlags flags { painted.face.isDark, painted.face.increasesContrast, painted.face.reducesTransparency };
    const auto line = painted.geometry.card.insetBy(FocusRing::width / 2);
    cairo_rectangle(context, line.x, line.y, line.width, line.height);
    cairo_set_line_width(context, FocusRing::width);
    setColor(context, Palette::focusRing.rgba(flags));
    cairo_stroke(context);
}

}

void paintNothing(cairo_t* context)
{
    cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
    cairo_paint(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
}

void paint(cairo_t* context, const PaintedFace& painted)
{
    paintNothing(context);
    const auto& [face, geometry, ground, frame, pictures, isRingedInside, pressed] = painted;
    const auto card = cardInPixels(geometry);
    {
        const CardPixels pixels(context, geometry);
        const double radius = radiusWithin(clipOf(context), card, geometry.radius * geometry.scale);
        if (ground.fill) {
            addRounded(context, card, radius);
            setColor(context, *ground.fill);
            cairo_fill(context);
        }
        if (face.picture) {
            for (const auto& layer : face.picture->layers)
                paintLayer(context, face, layer, card, radius);
        }
        if (frame)
            paintFrame(context, *frame, painted);
    }
    if (pressed)
        paintPressed(context, painted);
    if (isRingedInside)
        paintInnerRing(context, painted);
    for (const auto* placed : pictures) {
        if (placed)
            paintPlaced(context, *placed, geometry.scale);
    }
}

}
