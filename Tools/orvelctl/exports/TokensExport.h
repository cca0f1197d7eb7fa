#pragma once

#include <string>

namespace orvel {

/// All tokens in the W3C Design Tokens community format: one group per namespace, points as "px", durations in "s".
/// A colour is a group of its variants (dusk, dawn and those it has of duskHighContrast, dawnHighContrast, duskSolid,
/// dawnSolid), a shadow one of dusk and dawn with its layers in drawing order. What the format has no place for stands
/// under "$extensions".
std::string tokensAsJson();

/// All tokens as CSS custom properties on `:root`, from "--orvel-space-s4" to "--orvel-color-surface-1". Colours and
/// shadows follow the reader's preferences for appearance, contrast and transparency.
std::string tokensAsCss();

}
