#include "OrvelPlatform/Drawing/CairoPath.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <numbers>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
constexpr double quarterTurn = std::numbers::pi / 2;

/// An arc of the rectangle's ellipse, clockwise from the top.
void addArc(cairo_t* context, const Rect& in, double start, double sweep)
{
    if (in.width <= 0 || in.height <= 0)
        return;
    cairo_matrix_t before;
    cairo_get_matrix(context, &before);
    cairo_translate(context, in.center().x, in.center().y);
    cairo_scale(context, in.width / 2, in.height / 2);
    cairo_arc(context, 0, 0, 1, start - quarterTurn, start - quarterTurn + sweep);
    cairo_set_matrix(context, &before);
}

void addEllipse(cairo_t* context, const Rect& in)
{
    cairo_new_sub_path(context);
    addArc(context, in, 0, fullTurn);
    cairo_close_path(context);
}

void addRounded(cairo_t* context, const Rect& in, double wanted)
{
    const double radius = std::min({ wanted, in.width / 2, in.height / 2 });
    if (radius <= 0)
        return cairo_rectangle(context, in.x, in.y, in.width, in.height);
    const double left = in.x + radius, right = in.right() - radius;
    const double top = in.y + radius, bottom = in.bottom() - radius;
    cairo_new_sub_path(context);
    cairo_arc(context, right, top, radius, -quarterTurn, 0);
    cairo_arc(context, right, bottom, radius, 0, quarterTurn);
    cairo_arc(context, left, bottom, radius, quarterTurn, 2 * quarterTurn);
    cairo_arc(context, left, top, radius, 2 * quarterTurn, 3 * quarterTurn);
    cairo_close_path(context);
}

}

void addPath(cairo_t* context, const Outline& outline, const Rect& in)
{
    std::visit(Match {
                   [&](const Rectangle&) { cairo_rectangle(context, in.x, in.y, in.width, in.height); },
                   [&](const RoundedRectangle& rounded) { addRounded(context, in, rounded.radius); },
                   [&](const Capsule&) { addRounded(context, in, std::min(in.width, in.height) / 2); },
                   [&](const Ellipse&) { addEllipse(context, in); },
                   [&](const Arc& arc) {
                       cairo_new_sub_path(context);
                       addArc(context, in, arc.start * fullTurn, std::clamp(arc.sweep, 0.0, 1.0) * fullTurn);
                   },
                   [&](const Ring& ring) {
                       addEllipse(context, in);
                       addEllipse(context, in.insetBy(ring.width));
                   },
               },
        outline);
}

void addPath(cairo_t* context, const Path& path)
{
    for (const auto& [kind, points] : path) {
        switch (kind) {
        case PathStep::Kind::move:
            cairo_move_to(context, points[0].x, points[0].y);
            break;
        case PathStep::Kind::line:
            cairo_line_to(context, points[0].x, points[0].y);
            break;
        case PathStep::Kind::curve:
            cairo_curve_to(context, points[0].x, points[0].y, points[1].x, points[1].y, points[2].x, points[2].y);
            break;
        case PathStep::Kind::close:
            cairo_close_path(context);
            break;
        }
    }
}

PlacedOutline PlacedOutline::grownBy(double amount) const
{
    PlacedOutline grown { outline, in.insetBy(-amount) };
    if (auto* const rounded = std::get_if<RoundedRectangle>(&grown.outline))
        rounded->radius = rounded->radius > 0 ? std::max(rounded->radius + amount, 0.0) : 0;
    return grown;
}

}
