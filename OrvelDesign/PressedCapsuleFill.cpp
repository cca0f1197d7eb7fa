#include "OrvelDesign/PressedCapsuleFill.h"

#include <algorithm>

#include "OrvelDesign/Palette.h"

namespace orvel {

RGBA pressed(const Tokens::ColorPair& pair, ColorFlags flags)
{
    flags.reduceTransparency = false;
    const auto move = [&](double component) {
        return flags.dark ? std::min(component * 0.92, 1.0) : component + (1 - component) * 0.12;
    };
    const auto base = pair.rgba(flags);
    return { move(base.red), move(base.green), move(base.blue), base.alpha };
}

ResolvedColor PressedCapsuleFill::resolve(const Environment& environment) const
{
    const auto fill = pressed(Palette::accentFill.pair, ColorFlags::in(environment));
    return {
        static_cast<float>(fill.red),
        static_cast<float>(fill.green),
        static_cast<float>(fill.blue),
        static_cast<float>(fill.alpha),
    };
}

}
