#include "Tools/contrast/Contrast.h"

#include <algorithm>
#include <cmath>

namespace orvel {

namespace {

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const RGBA& color)
{
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

}

RGBA composited(const RGBA& above, const RGBA& beneath)
{
    const auto mix = [&](double top, double bottom) { return bottom + (top - bottom) * above.alpha; };
    return { mix(above.red, beneath.red), mix(above.green, beneath.green), mix(above.blue, beneath.blue), 1 };
}

double contrastRatio(const RGBA& a, const RGBA& b)
{
    const auto [darker, lighter] = std::minmax({ relativeLuminance(a), relativeLuminance(b) });
    return (lighter + 0.05) / (darker + 0.05);
}

}
