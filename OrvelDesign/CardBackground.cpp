#include "OrvelDesign/CardBackground.h"

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"

namespace orvel {

namespace {

ShadowLayers layers(const ShadowPair& shadow, ColorFlags flags)
{
    return flags.dark ? shadow.dusk : shadow.dawn;
}

}

CardEdge cardEdge(LitEdge edge, ColorFlags flags)
{
    if (flags.increaseContrast)
        return { {}, CardBorder { .width = 1, .color = Palette::line.rgba(flags) } };
    switch (edge) {
    case LitEdge::resting:
        return { layers(Tokens::Shadow::litEdge, flags), std::nullopt };
    case LitEdge::active:
        return { layers(Tokens::Shadow::litEdgeActive, flags), std::nullopt };
    case LitEdge::none:
        return {};
    }
    return {};
}

}
