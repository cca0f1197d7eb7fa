#include "OrvelPlatform/Drawing/CairoCanvas.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Drawing/CairoPath.h"
#include "OrvelPlatform/Drawing/DeviceSpace.h"
#include "OrvelPlatform/Drawing/PangoShapedText.h"
#include "OrvelPlatform/Drawing/ShadowDrawing.h"

namespace orvel {

namespace {

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

void CairoCanvas::paintOn(const Paint& paint, const PaintedArea& area, const Drawing& drawing)
{
    if (!std::holds_alternative<Erase>(paint)) {
        if (setSource(m_sources, current(), paint, area))
            drawing(current());
        return;
    }
    for (const auto& context : m_contexts) {
        cairo_set_source_rgb(context.get(), 0, 0, 0);
        cairo_set_operator(context.get(), CAIRO_OPERATOR_DEST_OUT);
        drawing(context.get());
        cairo_set_operator(context.get(), CAIRO_OPERATOR_OVER);
    }
}

void CairoCanvas::fill(const Outline& outline, const Rect& in, const Paint& paint)
{
    if (in.width <= 0 || in.height <= 0)
        return;
    const bool snaps = isHairline(outline, in) && !m_isVector;
    paintOn(paint, { in, 1 }, [&](cairo_t* context) {
        if (snaps) {
            const auto line = snapped(inPixels(context, in));
            const PixelScope pixels(context);
            cairo_rectangle(context, line.x, line.y, line.width, line.height);
        } else {
            addPath(context, outline, in);
        }
        cairo_fill(context);
    });
}

void CairoCanvas::stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint)
{
    paintOn(paint, { in, stroke.width }, [&](cairo_t* context) {
        cairo_set_line_width(context, stroke.width);
        cairo_set_line_cap(context, capOf(stroke));
        addPath(context, outline, in);
        cairo_stroke(context);
    });
}

void CairoCanvas::shadow(const Outline& outline, const Rect& in, const Shadow& shadow)
{
    paintOn(shadow.color, { in, 0 }, [&](cairo_t* context) {
        drawShadow(m_sources, context, { outline, in }, shadow);
    });
}

void CairoCanvas::text(const ShapedText& text, Point at, const std::vector<Paint>& paints)
{
    const auto* const shaped = dynamic_cast<const PangoShapedText*>(&text);
    precondition(shaped && !paints.empty(), "text is drawn by the text system that shaped it, with a paint");
    const PaintedArea area { { at, text.size }, text.size.height };
    const bool isOneColor = std::ranges::adjacent_find(paints, std::not_equal_to {}) == paints.end();
    if (m_isVector || shaped->hasColorGlyphs()) {
        paintOn(paints.front(), area, [&](cairo_t* context) {
            cairo_save(context);
            cairo_translate(context, at.x, at.y);
            shaped->show(context);
            cairo_restore(context);
        });
        return;
    }
    const auto drawMask = [&](const Paint& paint, const PangoShapedText::Mask& mask) {
        paintOn(paint, area, [&](cairo_t* context) {
            const auto origin = inPixels(context, area.rect);
            const PixelScope pixels(context);
            cairo_mask_surface(
                context, mask.coverage.get(), std::round(origin.x) + mask.left, std::round(origin.y) + mask.top);
        });
    };
    const double scale = scaleOf(current());
    if (isOneColor)
        return drawMask(paints.front(), shaped->mask(scale));
    for (std::size_t run = 0; run < shaped->runCount(); ++run)
        drawMask(paints[std::min(run, paints.size() - 1)], shaped->mask(scale, run));
}

void CairoCanvas::symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint)
{
    const double scale = in.width / symbol.side;
    if (scale <= 0)
        return;
    paintOn(paint, { in, strokeWidth }, [&](cairo_t* context) {
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
                       [&](const Clip& clip) {
                           addPath(context, clip.outline, clip.in);
                           cairo_clip(context);
                       },
                       [&](const Fade&) { cairo_push_group(context); },
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
    if (std::holds_alternative<Accent>(state))
        --m_accents;
}

}
