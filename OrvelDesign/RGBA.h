#pragma once

namespace orvel {

/// One colour in the sRGB space; components from 0 to 1, not premultiplied.
struct RGBA {
    double red;
    double green;
    double blue;
    double alpha;

    /// The same colour with another alpha, which replaces the old one and is not multiplied with it.
    constexpr RGBA withAlpha(double newAlpha) const { return { red, green, blue, newAlpha }; }

    bool operator==(const RGBA&) const = default;
};

}
