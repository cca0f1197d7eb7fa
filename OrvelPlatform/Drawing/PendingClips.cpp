#include "OrvelPlatform/Drawing/PendingClips.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <variant>

#include "OrvelPlatform/Drawing/CairoPath.h"
#include "OrvelPlatform/Drawing/DeviceSpace.h"

namespace orvel {

namespace {

constexpr double softEdge = 1; // pixels that a clip may cover in part

/// The radius of a convex outline's corners in points; absent for what is not a rectangle with corners.
std::optional<double> cornerRadius(const Outline& outline, const Rect& in)
{
    const double most = std::min(in.width, in.height) / 2;
    if (std::holds_alternative<Rectangle>(outline))
        return 0;
    if (std::holds_alternative<Capsule>(outline))
        return most;
    if (const auto* rounded = std::get_if<RoundedRectangle>(&outline))
        return std::clamp(rounded->radius, 0.0, most);
    return std::nullopt;
}

}

void PendingClips::push(cairo_t* context, const Outline& outline, const Rect& in)
{
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    m_clips.push_back({ outline, in, { matrix.xx, matrix.yx, matrix.xy, matrix.yy, matrix.x0, matrix.y0 },
        inPixels(context, in), scaleOf(context) });
}

void PendingClips::applyTo(cairo_t* context) const
{
    cairo_matrix_t before;
    cairo_get_matrix(context, &before);
    for (std::size_t i = m_applied; i < m_clips.size(); ++i) {
        const auto& [xx, yx, xy, yy, x0, y0] = m_clips[i].matrix;
        cairo_matrix_t matrix;
        cairo_matrix_init(&matrix, xx, yx, xy, yy, x0, y0);
        cairo_set_matrix(context, &matrix);
        addPath(context, m_clips[i].outline, m_clips[i].in);
        cairo_clip(context);
    }
    cairo_set_matrix(context, &before);
}

void PendingClips::addTo(SurfaceKey& key) const
{
    for (std::size_t i = m_applied; i < m_clips.size(); ++i) {
        const auto& [outline, in, matrix, pixels, scale] = m_clips[i];
        orvel::addTo(key, outline);
        key.add(pixels.x).add(pixels.y).add(pixels.width).add(pixels.height).add(scale);
    }
}

/// How far the rectangle reaches into the corners, measured from the centres of their arcs.
bool PendingClips::isWithin(const Rect& pixels, const Clip& clip)
{
    const auto points = cornerRadius(clip.outline, clip.in);
    if (!points)
        return false;
    const double radius = *points * clip.scale;
    const auto& [x, y, width, height] = clip.pixels;
    if (!clip.pixels.contains(pixels))
        return false;
    const auto outwards = [&](double from, double to, double start, double length) {
        return std::max({ start + radius - from, to - (start + length - radius), 0.0 });
    };
    const double across = outwards(pixels.x, pixels.right(), x, width);
    const double down = outwards(pixels.y, pixels.bottom(), y, height);
    return across == 0 || down == 0 || std::hypot(across, down) <= radius - softEdge;
}

bool PendingClips::cut(const std::optional<Rect>& pixels) const
{
    const auto pending = m_clips.begin() + static_cast<std::ptrdiff_t>(m_applied);
    if (!pixels)
        return pending != m_clips.end();
    const auto whole = rectOf(pixelsAround(*pixels));
    return std::any_of(pending, m_clips.end(), [&](const Clip& clip) { return !isWithin(whole, clip); });
}

PendingClips::Scope::Scope(const PendingClips& clips, cairo_t* context, const std::optional<Rect>& pixels)
    : m_context(clips.cut(pixels) ? context : nullptr)
{
    if (!m_context)
        return;
    cairo_save(m_context);
    clips.applyTo(m_context);
}

PendingClips::Scope::~Scope()
{
    if (m_context)
        cairo_restore(m_context);
}

}
