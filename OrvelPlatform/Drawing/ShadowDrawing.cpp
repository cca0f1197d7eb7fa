#include "OrvelPlatform/Drawing/ShadowDrawing.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <span>

#include "OrvelPlatform/Drawing/Blur.h"
#include "OrvelPlatform/Drawing/DeviceSpace.h"

namespace orvel {

namespace {

/// The outline whose light or shade is seen, in points: grown and moved for a shadow outside; inside, what the light
/// leaves free.
PlacedOutline cast(const PlacedOutline& outline, const Shadow& shadow)
{
    auto moved = outline.grownBy(shadow.inset ? -shadow.spread : shadow.spread);
    moved.in.x += shadow.x;
    moved.in.y += shadow.y;
    return moved;
}

/// Everything that a shadow can reach, in points.
Rect reachOf(const PlacedOutline& outline, const Shadow& shadow)
{
    const double blurred = 1.5 * shadow.blur + 1; // three standard deviations, and a point for rounding
    if (shadow.inset)
        return outline.in.insetBy(-blurred);
    return cast(outline, shadow).in.insetBy(-blurred);
}

/// Fills the shadow's own shape, sharp.
void addShape(cairo_t* context, const PlacedOutline& outline, const Shadow& shadow)
{
    const auto shape = cast(outline, shadow);
    if (shadow.inset) {
        const auto reach = reachOf(outline, shadow);
        cairo_rectangle(context, reach.x, reach.y, reach.width, reach.height);
    }
    addPath(context, shape.outline, shape.in);
}

/// Keeps drawing outside the outline, or inside it.
void clip(cairo_t* context, const PlacedOutline& outline, const Shadow& shadow)
{
    if (!shadow.inset) {
        const auto reach = reachOf(outline, shadow);
        const double left = std::min(reach.x, outline.in.x) - 1, top = std::min(reach.y, outline.in.y) - 1;
        cairo_rectangle(context, left, top, std::max(reach.right(), outline.in.right()) + 1 - left,
            std::max(reach.bottom(), outline.in.bottom()) + 1 - top);
    }
    addPath(context, outline.outline, outline.in);
    cairo_clip(context);
}

void blur(cairo_surface_t* surface, double deviation)
{
    cairo_surface_flush(surface);
    const auto height = static_cast<std::size_t>(cairo_image_surface_get_height(surface));
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface));
    blur(CoverageGrid { { cairo_image_surface_get_data(surface), stride * height },
             static_cast<std::size_t>(cairo_image_surface_get_width(surface)), height, stride },
        deviation);
    cairo_surface_mark_dirty(surface);
}

SurfaceHandle blurredShape(
    const PlacedOutline& outline, const Shadow& shadow, const PixelBox& box, const Point& origin, double scale)
{
    SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_A8, box.width, box.height));
    const CairoHandle context(cairo_create(surface.get()));
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    cairo_translate(context.get(), origin.x - box.left, origin.y - box.top);
    cairo_scale(context.get(), scale, scale);
    cairo_translate(context.get(), -outline.in.x, -outline.in.y);
    addShape(context.get(), outline, shadow);
    cairo_fill(context.get());
    blur(surface.get(), shadow.blur / 2 * scale);
    return surface;
}

}

void drawShadow(const Sources& sources, cairo_t* context, const PlacedOutline& outline, const Shadow& shadow)
{
    cairo_save(context);
    clip(context, outline, shadow);
    if (shadow.blur <= 0) {
        addShape(context, outline, shadow);
        cairo_fill(context);
        cairo_restore(context);
        return;
    }
    const double oversampling = sources.isVector ? 2 : 1; // where there are no pixels, a point has two
    const double scale = scaleOf(context) * oversampling;
    const auto inMask = [&](const Rect& rect) {
        const auto pixels = inPixels(context, rect);
        return Rect { pixels.x * oversampling, pixels.y * oversampling, pixels.width * oversampling,
            pixels.height * oversampling };
    };
    const auto origin = inMask(outline.in).origin();
    const auto box = pixelsAround(inMask(reachOf(outline, shadow)));
    SurfaceKey key("shadow");
    addTo(key, outline.outline);
    key.add(outline.in.width).add(outline.in.height).add(origin.x - box.left).add(origin.y - box.top).add(scale);
    key.add(shadow.inset ? 1 : 0).add(shadow.x).add(shadow.y).add(shadow.blur).add(shadow.spread);
    const auto mask = sources.kept.find(key, [&] { return blurredShape(outline, shadow, box, origin, scale); });
    cairo_identity_matrix(context);
    cairo_scale(context, 1 / oversampling, 1 / oversampling);
    cairo_mask_surface(context, mask.get(), box.left, box.top);
    cairo_restore(context);
}

}
