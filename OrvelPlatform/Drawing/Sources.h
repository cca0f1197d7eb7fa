#pragma once

#include <map>
#include <string>

#include "OrvelPlatform/Drawing/KeptSurfaces.h"
#include "OrvelPlatform/Drawing/TextureTile.h"
#include "OrvelPlatform/Views/Paint.h"

namespace orvel {

using TextureTiles = std::map<std::string, TextureTile, std::less<>>;

/// Where a canvas takes what it paints with.
struct Sources {
    KeptSurfaces& kept;
    const TextureTiles& textures;
    bool isVector; // no pixels: gradients stay gradients
};

/// What a paint is laid out on, and how far beyond it the drawing may reach; in points.
struct PaintedArea {
    Rect rect;
    double margin;
};

/// Adds a gradient without the rectangle that it is laid out on.
void addTo(SurfaceKey& key, const LinearGradient& gradient);

/// A gradient's pixels on an area and what lies round it, without any edge. The surface knows where it lies among the
/// context's.
SurfaceHandle gradientSurface(_cairo* context, const LinearGradient& gradient, const PaintedArea& area);

/// Fills the context's whole target, an image, with the gradient of an area.
void fillTarget(_cairo* context, const LinearGradient& gradient, const PaintedArea& area);

/// Makes a paint the context's source; false where it paints nothing.
bool setSource(const Sources& sources, _cairo* context, const Paint& paint, const PaintedArea& area);

}
