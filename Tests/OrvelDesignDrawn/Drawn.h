#pragma once

#include <string>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// A view's drawing as text.
inline std::string drawn(const View& view, Rect in, const Environment& environment = {})
{
    RecordingCanvas canvas;
    draw(view, canvas, in, environment);
    return canvas.text();
}

inline Environment dark()
{
    return Environment().with<ColorSchemeKey>(ColorScheme::dark);
}

}
