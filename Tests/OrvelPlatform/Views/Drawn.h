#pragma once

#include <string>

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"

/// Pieces for the tests of layouts: letters of size 10 are 5 wide, lines 12 high.
namespace orvel {

inline const Color ink { 0, 0, 0 };
inline const TextStyle letters { .size = 10, .lineHeight = 12 };

inline Text words(std::string text, int lineLimit = 0)
{
    return { .runs = { { std::move(text), letters } }, .paint = ink, .lineLimit = lineLimit };
}

/// A rectangle of one size.
inline View box(double width, double height)
{
    return Frame { FrameLength::exactly(width), FrameLength::exactly(height), Alignment::center,
        Shape { Rectangle {}, ink } };
}

/// A rectangle that takes the room it gets.
inline View filler()
{
    return Shape { Ellipse {}, ink };
}

inline const Environment rightToLeft = Environment().with<LayoutDirectionKey>(LayoutDirection::rightToLeft);

/// The marks alone.
inline std::string drawn(const View& view, Rect in, const Environment& environment = {})
{
    RecordingCanvas canvas;
    draw(Hidden { view }, canvas, in, environment);
    return canvas.text();
}

}
