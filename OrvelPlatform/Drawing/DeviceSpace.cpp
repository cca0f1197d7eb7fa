#include "OrvelPlatform/Drawing/DeviceSpace.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

namespace orvel {

namespace {

/// A stretch on whole pixels. `isThin` keeps its middle in place rather than its ends.
struct Stretch {
    double from;
    double length;
};

Stretch snapped(double from, double length, bool isThin)
{
    const double whole = std::max(std::round(isThin ? length : std::round(from + length) - std::round(from)), 1.0);
    return { isThin ? std::round(from + (length - whole) / 2) : std::round(from), whole };
}

}

double scaleOf(cairo_t* context)
{
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    return matrix.xx;
}

Rect inPixels(cairo_t* context, const Rect& rect)
{
    double x = rect.x, y = rect.y;
    cairo_user_to_device(context, &x, &y);
    const double scale = scaleOf(context);
    return { x, y, rect.width * scale, rect.height * scale };
}

PixelBox pixelsAround(const Rect& pixels)
{
    const double left = std::floor(pixels.x), top = std::floor(pixels.y);
    return { static_cast<int>(left), static_cast<int>(top), static_cast<int>(std::ceil(pixels.right()) - left),
        static_cast<int>(std::ceil(pixels.bottom()) - top) };
}

Rect rectOf(const PixelBox& box)
{
    return { static_cast<double>(box.left), static_cast<double>(box.top), static_cast<double>(box.width),
        static_cast<double>(box.height) };
}

Rect snapped(const Rect& pixels)
{
    const bool isUpright = pixels.width < pixels.height;
    const auto [x, width] = snapped(pixels.x, pixels.width, isUpright);
    const auto [y, height] = snapped(pixels.y, pixels.height, !isUpright);
    return { x, y, width, height };
}

PixelScope::PixelScope(cairo_t* context) : m_context(context), m_matrix()
{
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    std::ranges::copy(std::initializer_list { matrix.xx, matrix.yx, matrix.xy, matrix.yy, matrix.x0, matrix.y0 },
        std::begin(m_matrix));
    cairo_identity_matrix(context);
}

PixelScope::~PixelScope()
{
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, m_matrix[0], m_matrix[1], m_matrix[2], m_matrix[3], m_matrix[4], m_matrix[5]);
    cairo_set_matrix(m_context, &matrix);
}

}
