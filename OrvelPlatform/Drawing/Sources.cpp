#include "OrvelPlatform/Drawing/Sources.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <span>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Drawing/DeviceSpace.h"
#include "OrvelPlatform/Drawing/GradientPixels.h"

namespace orvel {

namespace {

constexpr int longestSide = 4096; // pixels; what is larger is left to the library's own gradients

struct PatternRelease {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using Pattern = std::unique_ptr<cairo_pattern_t, PatternRelease>;

void addStops(cairo_pattern_t* pattern, const std::vector<GradientStop>& stops)
{
    for (const auto& [location, color] : stops)
        cairo_pattern_add_color_stop_rgba(pattern, location, color.red, color.green, color.blue, color.alpha);
}

Pattern patternOf(const LinearGradient& gradient, const Rect& in)
{
    return Pattern(cairo_pattern_create_linear(in.x + gradient.start.x * in.width, in.y + gradient.start.y * in.height,
        in.x + gradient.end.x * in.width, in.y + gradient.end.y * in.height));
}

Pattern patternOf(const RadialGradient& gradient, const Rect& in)
{
    const double x = in.x + gradient.center.x * in.width, y = in.y + gradient.center.y * in.height;
    return Pattern(cairo_pattern_create_radial(x, y, 0, x, y, gradient.radius));
}

void addTo(SurfaceKey& key, const std::vector<GradientStop>& stops)
{
    for (const auto& [location, color] : stops)
        key.add(location).add(color.red).add(color.green).add(color.blue).add(color.alpha);
}

void addTo(SurfaceKey& key, const RadialGradient& gradient)
{
    key.add(std::string_view("radial")).add(gradient.center.x).add(gradient.center.y).add(gradient.radius);
    addTo(key, gradient.stops);
}

void paintPixels(const PixelGrid& grid, const LinearGradient& gradient, double)
{
    paintGradient(grid, gradient);
}

void paintPixels(const PixelGrid& grid, const RadialGradient& gradient, double scale)
{
    paintGradient(grid, gradient, scale);
}

/// The painted rectangle in pixels, and the whole pixels that are kept for it.
struct GradientPlace {
    Rect painted;
    PixelBox box;
    double scale;
};

GradientPlace placeOf(cairo_t* context, const PaintedArea& area)
{
    return { inPixels(context, area.rect), pixelsAround(inPixels(context, area.rect.insetBy(-area.margin))),
        scaleOf(context) };
}

cairo_format_t formatOf(const std::vector<GradientStop>& stops)
{
    const bool isOpaque = std::ranges::all_of(stops, [](const GradientStop& stop) { return stop.color.alpha >= 1; });
    return isOpaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32;
}

/// An image's pixels, to paint on a rectangle of them.
PixelGrid gridOf(cairo_surface_t* image, const Rect& painted)
{
    auto* const pixels = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(image));
    const auto width = static_cast<std::size_t>(cairo_image_surface_get_stride(image)) / sizeof *pixels;
    const auto height = static_cast<std::size_t>(cairo_image_surface_get_height(image));
    return { std::span(pixels, width * height), width, painted };
}

template <typename Gradient>
SurfaceHandle surfaceOf(const Gradient& gradient, const GradientPlace& place, cairo_format_t format)
{
    const auto& [painted, box, scale] = place;
    SurfaceHandle surface(cairo_image_surface_create(format, box.width, box.height));
    paintPixels(gridOf(surface.get(), { painted.x - box.left, painted.y - box.top, painted.width, painted.height }),
        gradient, scale);
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

template <typename Gradient>
bool setGradient(const Sources& sources, cairo_t* context, const Gradient& gradient, const PaintedArea& area)
{
    const auto place = placeOf(context, area);
    const auto& [painted, box, scale] = place;
    if (gradient.stops.empty() || box.width < 1 || box.height < 1)
        return false;
    if (sources.isVector || box.width > longestSide || box.height > longestSide) {
        const auto pattern = patternOf(gradient, area.rect);
        addStops(pattern.get(), gradient.stops);
        cairo_set_source(context, pattern.get());
        return true;
    }
    SurfaceKey key("gradient");
    addTo(key, gradient);
    key.add(painted.x - box.left).add(painted.y - box.top).add(painted.width).add(painted.height);
    key.add(box.width).add(box.height).add(scale);
    const auto surface = sources.kept.find(key, [&] { return surfaceOf(gradient, place, formatOf(gradient.stops)); });
    const PixelScope pixels(context);
    cairo_set_source_surface(context, surface.get(), box.left, box.top);
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    return true;
}

bool setColor(cairo_t* context, const Color& color)
{
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    return color.alpha > 0;
}

/// A tile's pixel is a device pixel, so that it is as fine as can be seen.
bool setTexture(const Sources& sources, cairo_t* context, const Texture& texture, const Rect& in)
{
    const auto& ground = texture.ground;
    const auto found = sources.textures.find(texture.name);
    if (found == sources.textures.end())
        return setColor(context, ground);
    SurfaceKey key("texture");
    key.add(texture.name).add(texture.opacity).add(ground.red).add(ground.green).add(ground.blue).add(ground.alpha);
    const auto tile = sources.kept.find(key, [&] { return found->second.on(ground, texture.opacity); });
    const auto corner = inPixels(context, in);
    const PixelScope pixels(context);
    cairo_set_source_surface(context, tile.get(), std::round(corner.x), std::round(corner.y));
    cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_REPEAT);
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    return true;
}

}

void addTo(SurfaceKey& key, const LinearGradient& gradient)
{
    key.add(std::string_view("linear"))
        .add(gradient.start.x)
        .add(gradient.start.y)
        .add(gradient.end.x)
        .add(gradient.end.y);
    addTo(key, gradient.stops);
}

SurfaceHandle gradientSurface(cairo_t* context, const LinearGradient& gradient, const PaintedArea& area)
{
    const auto place = placeOf(context, area);
    auto surface = surfaceOf(gradient, place, CAIRO_FORMAT_ARGB32);
    cairo_surface_set_device_offset(surface.get(), -place.box.left, -place.box.top);
    return surface;
}

void fillTarget(cairo_t* context, const LinearGradient& gradient, const PaintedArea& area)
{
    auto* const target = cairo_get_target(context);
    cairo_surface_flush(target);
    paintGradient(gridOf(target, inPixels(context, area.rect)), gradient);
    cairo_surface_mark_dirty(target);
}

bool setSource(const Sources& sources, cairo_t* context, const Paint& paint, const PaintedArea& area)
{
    return std::visit(Match {
                          [&](const Color& color) { return setColor(context, color); },
                          [&](const LinearGradient& gradient) { return setGradient(sources, context, gradient, area); },
                          [&](const RadialGradient& gradient) { return setGradient(sources, context, gradient, area); },
                          [&](const Texture& texture) { return setTexture(sources, context, texture, area.rect); },
                          [](const Erase&) { return false; },
                      },
        paint);
}

}
