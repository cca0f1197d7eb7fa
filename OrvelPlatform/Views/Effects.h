#pragma once

#include "OrvelPlatform/Views/View.h"

/// Views that change how another is drawn and leave its layout alone.
namespace orvel {

/// Drawn as one picture and then at an opacity.
struct Opacity {
    double opacity;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Drawn larger or smaller about its centre.
struct Scale {
    double factor;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Belongs to the accent layer of a tinted picture.
struct Accentable {
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Drawn within an outline only.
struct Clipped {
    Outline outline;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}
