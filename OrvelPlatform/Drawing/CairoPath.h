#pragma once

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/Outline.h"

namespace orvel {

/// Adds an outline to a context's path. Where two of its lines cross, it is filled by the even-odd rule.
void addPath(_cairo* context, const Outline& outline, const Rect& in);

/// Adds a free path, in its own units.
void addPath(_cairo* context, const Path& path);

/// The outline and the rectangle grown on every side, its corners with it; a negative amount shrinks it.
struct PlacedOutline {
    Outline outline;
    Rect in;
    PlacedOutline grownBy(double amount) const;
};

}
