#include "OrvelDesign/OrvelColor.h"

namespace orvel {

RGBA OrvelColor::resolve(const Environment& environment) const
{
    return rgba(ColorFlags::in(environment));
}

DynamicColor OrvelColor::nsColor() const
{
    return { *this, DynamicColor::Variant::plain };
}

DynamicColor OrvelColor::color() const
{
    return nsColor();
}

DynamicColor OrvelColor::solid() const
{
    return { *this, DynamicColor::Variant::solid };
}

DynamicColor::DynamicColor(OrvelColor color, Variant variant) : m_color(color), m_variant(variant) { }

std::string DynamicColor::name() const
{
    auto name = "orvel." + std::string(m_color.name);
    return m_variant == Variant::solid ? name + ".solid" : name;
}

RGBA DynamicColor::rgba(ColorFlags flags) const
{
    flags.reduceTransparency |= m_variant == Variant::solid;
    return m_color.rgba(flags);
}

}
