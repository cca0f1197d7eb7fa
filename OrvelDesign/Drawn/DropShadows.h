#pragma once

#include "OrvelDesign/ShadowLayer.h"

namespace orvel {

/// Layers drawn outside their shape, in order, whatever their `inset` says.
struct DropShadows {
    ShadowLayers layers;

    bool operator==(const DropShadows&) const = default;
};

}
