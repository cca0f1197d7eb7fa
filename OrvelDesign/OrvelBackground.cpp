#include "OrvelDesign/OrvelBackground.h"

#include <cstdint>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/TokensShadow.h"

namespace orvel {

namespace Grain {

namespace {

/// Spreads every bit of its input over the whole word (the finishing steps of a multiplicative hash).
std::uint32_t mixed(std::uint32_t bits)
{
    bits = (bits ^ (bits >> 16)) * 0x7feb352du;
    bits = (bits ^ (bits >> 15)) * 0x846ca68bu;
    return bits ^ (bits >> 16);
}

std::uint32_t onTile(int coordinate)
{
    return static_cast<std::uint32_t>((coordinate % tileSide + tileSide) % tileSide);
}

}

std::optional<double> opacity(const Environment& environment)
{
    if (!effectiveAccessibility(environment).showsTexture())
        return std::nullopt;
    return environment.get<ColorSchemeKey>() == ColorScheme::dark ? Tokens::Opacity::grainDusk
                                                                  : Tokens::Opacity::grainDawn;
}

double grey(int x, int y)
{
    const auto bits = mixed(onTile(y) * tileSide + onTile(x) + 1);
    return (bits >> 8) / static_cast<double>((1u << 24) - 1);
}

}

BackgroundPaint backgroundPaint(const OrvelColor& fill, const Environment& environment)
{
    return { fill.resolve(environment), Grain::opacity(environment) };
}

}
