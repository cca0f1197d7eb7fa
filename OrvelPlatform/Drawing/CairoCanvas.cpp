#include "OrvelPlatform/Drawing/CairoCanvas.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <utility>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Drawing/CairoPath.h"
#include "OrvelPlatform/Drawing/DeviceSpace.h"
#include "OrvelPlatform/Drawing/PangoShapedText.h"
#include "OrvelPlatform/Drawing/ShadowDrawing.h"

namespace orvel {

namespace {

constexpr double longestMask = 16384; // pixels; the library's own surfaces end at twice that
constexpr double mostPixels = 64 * 1024; // in a shape's mask that is kept
constexpr double mostGround = 2048 * 2048; // pixels in a ground that is kept
constexpr double hairline = 1; // points; what is at most as thin is one

CairoHandle contextOn(cairo_surface_t* surface, double scale)
{
    CairoHandle context(cairo_create(surface));
    cairo_scale(context.get(), scale, scale);
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    return context;
}

cairo_line_cap_t capOf(const Stroke& stroke)
{
    return stroke.cap == Stroke::Cap::round ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT;
}

bool isHairline(const Outline& outline, const Rect& in)
{
    return std::holds_alternative<Rectangle>(outline) && std::min(in.width, in.height) <= hairline;
}

}

CairoCanvas::CairoCanvas(const Target& target, KeptSurfaces& kept, const TextureTiles& textures)
    : m_sources { kept, textures, target.isVector }, m_isVector(target.isVector)
{
    m_contexts.push_back(contextOn(target.whole, target.scale));
    if (target.accent)
        m_contexts.push_back(contextOn(target.accent, target.scale));
}

cairo_t* CairoCanvas::current() const
{
    return m_accents > 0 ? m_contexts.back().get() : m_contexts.front().get();
}

void CairoCanvas::paintOn(
    const Paint& paint, const PaintedArea& area, const std::optional<Rect>& pixels, const Drawing& drawing)
{
    m_isClear = false;
    const auto drawClipped = [&](cairo_t* context) {
        const PendingClips::Scope clipped(m_clips, context, pixels);
        drawing(context);
    };
    if (!std::holds_alternative<Erase>(paint)) {
        if (setSource(m_sources, current(), paint, area))
            drawClipped(current());
        return;
    }
    for (const auto& context : m_contexts) {
        cairo_set_source_rgb(context.get(), 0, 0, 0);
        cairo_set_operator(context.get(), CAIRO_OPERATOR_DEST_OUT);
        drawClipped(context.get());
        cairo_set_operator(context.get(), CAIRO_OPERATOR_OVER);
    }
}

/// `at` is in device pixels.
void CairoCanvas::paintMask(const Paint& paint, const PaintedArea& area, cairo_surface_t* mask, Point at)
{
    const Rect pixels { at.x, at.y, static_cast<double>(cairo_image_surface_get_width(mask)),
        static_cast<double>(cairo_image_surface_get_height(mask)) };
    paintOn(paint, area, pixels, [&](cairo_t* context) {
        const PixelScope inPixels(context);
        cairo_mask_surface(context, mask, at.x, at.y);
    });
}

/// Whether these pixels are all of a clear picture.
bool CairoCanvas::isWhole(const Rect& pixels) const
{
    auto* const target = cairo_get_target(current());
    return m_isClear && pixels.x <= 0 && pixels.y <= 0 && pixels.right() >= cairo_image_surface_get_width(target)
        && pixels.bottom() >= cairo_image_surface_get_height(target);
}

/// Leaves of a ground's rows what the drawing covers within the clips. The outlines are cut as one: edges that coincide
/// would be softened once for each.
void CairoCanvas::cutRows(cairo_surface_t* ground, const PixelBox& rows, const Drawing& drawing) const
{
    const SurfaceHandle mask(cairo_image_surface_create(CAIRO_FORMAT_A8, rows.width, rows.height));
    cairo_surface_set_device_offset(mask.get(), -rows.left, -rows.top);
    const CairoHandle onMask(cairo_create(mask.get()));
    cairo_matrix_t matrix;
    cairo_get_matrix(current(), &matrix);
    cairo_set_matrix(onMask.get(), &matrix);
    m_clips.applyTo(onMask.get());
    drawing(onMask.get());
    const CairoHandle onGround(cairo_create(ground));
    cairo_rectangle(onGround.get(), rows.left, rows.top, rows.width, rows.height);
    cairo_clip(onGround.get()); // the operator clears all that is outside of what it draws
    cairo_set_operator(onGround.get(), CAIRO_OPERATOR_DEST_IN);
    cairo_set_source_surface(onGround.get(), mask.get(), 0, 0);
    cairo_paint(onGround.get());
}

/// Leaves of a ground what the drawing covers within the clips. Between its rounded corners there is nothing to cut.
void CairoCanvas::cutGround(cairo_surface_t* ground, const Rect& drawn, const Drawing& drawing) const
{
    constexpr int step = 16;
    double left = 0, top = 0;
    cairo_surface_get_device_offset(ground, &left, &top);
    const PixelBox all { -static_cast<int>(left), -static_cast<int>(top), cairo_image_surface_get_width(ground),
        cairo_image_surface_get_height(ground) };
    const auto rows = [&](int first, int end) {
        return PixelBox { all.left, all.top + first, all.width, std::min(end, all.height) - first };
    };
    const auto isCut = [&](int first) {
        const auto within = rectOf(rows(first, first + step));
        return !drawn.contains(within) || m_clips.cut(within);
    };
    for (int first = 0; first < all.height; first += step) {
        int end = first;
        while (end < all.height && isCut(end))
            end += step;
        if (end > first)
            cutRows(ground, rows(first, end), drawing);
        first = end;
    }
}

SurfaceHandle CairoCanvas::groundSurface(
    const LinearGradient& gradient, const PaintedArea& area, const Drawing& drawing) const
{
    auto surface = gradientSurface(current(), gradient, area);
    cutGround(surface.get(), inPixels(current(), area.rect), drawing);
    return surface;
}

/// A gradient all over a picture or within rounded corners, the ground of most widgets, is kept as the clips cut it.
/// For a single picture it is made in its place.
void CairoCanvas::paintGround(const LinearGradient& gradient, const PaintedArea& area, const Drawing& drawing)
{
    auto* const context = current();
    const auto pixels = inPixels(context, area.rect);
    const auto box = pixelsAround(pixels);
    SurfaceKey key("ground");
    addTo(key, gradient);
    key.add(pixels.x).add(pixels.y).add(pixels.width).add(pixels.height).add(scaleOf(context));
    m_clips.addTo(key);
    if (m_isClear && m_sources.kept.isWantedOnce(key, static_cast<std::size_t>(box.width * box.height) * 4)) {
        fillTarget(context, gradient, area);
        cutGround(cairo_get_target(context), pixels, drawing);
        m_isClear = false;
        return;
    }
    const auto ground = m_sources.kept.find(key, [&] { return groundSurface(gradient, area, drawing); });
    const PixelScope inPixels(context);
    cairo_set_source_surface(context, ground.get(), 0, 0); // the surface knows where it lies
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
    cairo_rectangle(context, box.left, box.top, box.width, box.height);
    cairo_set_operator(context, m_isClear ? CAIRO_OPERATOR_SOURCE : CAIRO_OPERATOR_OVER); // to copy is quicker
    cairo_fill(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
    m_isClear = false;
}

/// Draws by a mask that is kept: most shapes are the same in every frame. The key says what the drawing draws; where it
/// stands among the pixels is added here.
void CairoCanvas::paintShape(const Paint& paint, const PaintedArea& area, SurfaceKey key, const Drawing& drawing)
{
    auto* const context = current();
    const auto pixels = inPixels(context, area.rect);
    const double scale = scaleOf(context);
    const auto box = pixelsAround(pixels.insetBy(-area.margin * scale));
    const double size = static_cast<double>(box.width) * box.height;
    const auto drawn = pixels.insetBy(-area.margin * scale);
    // What a clip cuts is left to the library, which cuts the outline: a mask's soft edge would be softened twice.
    if (m_isVector || size > mostPixels || m_clips.cut(drawn))
        return paintOn(paint, area, drawn, drawing);
    key.add(pixels.width).add(pixels.height).add(pixels.x - box.left).add(pixels.y - box.top).add(scale);
    const auto mask = m_sources.kept.find(key, [&] {
        SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_A8, box.width, box.height));
        const CairoHandle onMask(cairo_create(surface.get()));
        cairo_set_fill_rule(onMask.get(), CAIRO_FILL_RULE_EVEN_ODD);
        cairo_translate(onMask.get(), pixels.x - box.left, pixels.y - box.top);
        cairo_scale(onMask.get(), scale, scale);
        cairo_translate(onMask.get(), -area.rect.x, -area.rect.y);
        drawing(onMask.get());
        return surface;
    });
    paintMask(paint, area, mask.get(), { static_cast<double>(box.left), static_cast<double>(box.top) });
}

void CairoCanvas::fill(const Outline& outline, const Rect& in, const Paint& paint)
{
    if (in.width <= 0 || in.height <= 0)
        return;
    const PaintedArea area { in, 1 };
    if (isHairline(outline, in) && !m_isVector) {
        const auto line = snapped(inPixels(current(), in));
        return paintOn(paint, area, line, [&](cairo_t* context) {
            const PixelScope pixels(context);
            cairo_rectangle(context, line.x, line.y, line.width, line.height);
            cairo_fill(context);
        });
    }
    const auto drawing = [&](cairo_t* context) {
        addPath(context, outline, in);
        cairo_fill(context);
    };
    if (std::holds_alternative<Rectangle>(outline)) {
        const auto pixels = inPixels(current(), in);
        const auto* gradient = std::get_if<LinearGradient>(&paint);
        const bool isGround = gradient && !m_isVector && pixels.width * pixels.height <= mostGround
            && (m_clips.cut(pixels) || isWhole(pixels));
        return isGround ? paintGround(*gradient, area, drawing) : paintOn(paint, area, pixels, drawing);
    }
    SurfaceKey key("fill");
    addTo(key, outline);
    paintShape(paint, area, std::move(key), drawing);
}

void CairoCanvas::stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint)
{
    const auto drawn = inPixels(current(), in.insetBy(-stroke.width));
    paintOn(paint, { in, stroke.width }, drawn, [&](cairo_t* context) {
        cairo_set_line_width(context, stroke.width);
        cairo_set_line_cap(context, capOf(stroke));
        addPath(context, outline, in);
        cairo_stroke(context);
    });
}

void CairoCanvas::shadow(const Outline& outline, const Rect& in, const Shadow& shadow)
{
    paintOn(shadow.color, { in, 0 }, std::nullopt, [&](cairo_t* context) {
        drawShadow(m_sources, context, { outline, in }, shadow);
    });
}

void CairoCanvas::text(const ShapedText& text, Point at, const std::vector<Paint>& paints)
{
    const auto* const shaped = dynamic_cast<const PangoShapedText*>(&text);
    precondition(shaped && !paints.empty(), "text is drawn by the text system that shaped it, with a paint");
    const PaintedArea area { { at, text.size }, text.size.height };
    const bool isOneColor = std::ranges::adjacent_find(paints, std::not_equal_to {}) == paints.end();
    const double scale = scaleOf(current());
    if (m_isVector || shaped->hasColorGlyphs() || std::max(text.size.width, text.size.height) * scale > longestMask) {
        paintOn(paints.front(), area, std::nullopt, [&](cairo_t* context) {
            cairo_save(context);
            cairo_translate(context, at.x, at.y);
            shaped->show(context);
            cairo_restore(context);
        });
        return;
    }
    const auto origin = inPixels(current(), area.rect);
    const auto drawMask = [&](const Paint& paint, const PangoShapedText::Mask& mask) {
        paintMask(
            paint, area, mask.coverage.get(), { std::round(origin.x) + mask.left, std::round(origin.y) + mask.top });
    };
    if (isOneColor)
        return drawMask(paints.front(), shaped->mask(scale));
    for (std::size_t run = 0; run < shaped->runCount(); ++run)
        drawMask(paints[std::min(run, paints.size() - 1)], shaped->mask(scale, run));
}

void CairoCanvas::symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint)
{
    const double scale = in.width / symbol.side;
    if (scale <= 0 || symbol.parts.empty())
        return;
    SurfaceKey key("symbol");
    key.add(symbol.name).add(static_cast<double>(symbol.parts.size())).add(strokeWidth);
    paintShape(paint, { in, strokeWidth }, std::move(key), [&](cairo_t* context) {
        cairo_save(context);
        cairo_translate(context, in.x, in.y);
        cairo_scale(context, scale, scale);
        cairo_set_line_width(context, strokeWidth / scale);
        cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
        cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
        for (const bool filled : { true, false }) {
            for (const auto& part : symbol.parts) {
                if (part.filled == filled)
                    addPath(context, part.path);
            }
            filled ? cairo_fill(context) : cairo_stroke(context);
        }
        cairo_restore(context);
    });
}

void CairoCanvas::entered(const State& state)
{
    for (const auto& owned : m_contexts) {
        auto* const context = owned.get();
        cairo_save(context);
        std::visit(Match {
                       [&](const Clip&) {},
                       [&](const Fade&) {
                           m_clips.applyTo(context);
                           cairo_push_group(context);
                       },
                       [&](const Magnify& magnify) {
                           cairo_translate(context, magnify.about.x, magnify.about.y);
                           cairo_scale(context, magnify.factor, magnify.factor);
                           cairo_translate(context, -magnify.about.x, -magnify.about.y);
                       },
                       [](const Accent&) {},
                       [](const Silence&) {},
                   },
            state);
    }
    if (const auto* clip = std::get_if<Clip>(&state))
        m_clips.push(m_contexts.front().get(), clip->outline, clip->in);
    if (std::holds_alternative<Fade>(state)) {
        m_appliedBefore.push_back(m_clips.setAllApplied());
        m_isClear = false;
    }
    if (std::holds_alternative<Accent>(state))
        ++m_accents;
}

void CairoCanvas::left(const State& state)
{
    for (const auto& owned : m_contexts) {
        if (const auto* fade = std::get_if<Fade>(&state)) {
            cairo_pop_group_to_source(owned.get());
            cairo_paint_with_alpha(owned.get(), fade->opacity);
        }
        cairo_restore(owned.get());
    }
    if (std::holds_alternative<Clip>(state))
        m_clips.pop();
    if (std::holds_alternative<Fade>(state)) {
        m_clips.setApplied(m_appliedBefore.back());
        m_appliedBefore.pop_back();
    }
    if (std::holds_alternative<Accent>(state))
        --m_accents;
}

}
