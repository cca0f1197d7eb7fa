#pragma once

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// A rectangle in a context's device pixels. Contexts here are only ever moved and scaled, both ways alike.
Rect inPixels(_cairo* context, const Rect& rect);

/// The whole pixels that a rectangle touches.
struct PixelBox {
    int left;
    int top;
    int width;
    int height;
};
PixelBox pixelsAround(const Rect& pixels);
Rect rectOf(const PixelBox& box);

/// Device pixels in a point.
double scaleOf(_cairo* context);

/// A hairline on whole pixels: its length to the nearest ones, its width rounded but never nothing.
Rect snapped(const Rect& pixels);

/// Takes the context to device pixels until it ends.
class PixelScope {
public:
    explicit PixelScope(_cairo* context);
    PixelScope(const PixelScope&) = delete;
    PixelScope& operator=(const PixelScope&) = delete;
    ~PixelScope();

private:
    _cairo* m_context;
    double m_matrix[6];
};

}
