#pragma once

#include <string>
#include <string_view>

#include "OrvelDesign/ColorPair.h"

namespace orvel {

class DynamicColor;

/// A colour token with the stable name under which the platform and the swatches know it: lower case with hyphens. The
/// name is a literal, or outlives the colour.
struct OrvelColor {
    Tokens::ColorPair pair;
    std::string_view name;

    constexpr RGBA rgba(ColorFlags flags) const { return pair.rgba(flags); }

    /// The colour as it is in an environment.
    RGBA resolve(const Environment& environment) const;

    /// A colour that follows the appearance by itself, named "orvel.<name>".
    DynamicColor nsColor() const;

    /// The same for views. PORT: one type serves the platform and its views here.
    DynamicColor color() const;

    /// A second one, named "orvel.<name>.solid", which prefers the solid variant wherever there is one.
    DynamicColor solid() const;

    bool operator==(const OrvelColor&) const = default;
};

/// A colour that is resolved anew for whatever appearance, contrast and transparency it is asked for. A plain value,
/// safe from any thread.
///
/// PORT: the design's first platform runs such an object by itself; here whoever draws asks it.
class DynamicColor {
public:
    enum class Variant { plain, solid };
    DynamicColor(OrvelColor color, Variant variant);

    /// "orvel.surface-2", "orvel.veil.solid".
    std::string name() const;

    /// Whoever knows no appearance asks with no flags: the light appearance with normal contrast.
    RGBA rgba(ColorFlags flags) const;

    bool operator==(const DynamicColor&) const = default;

private:
    OrvelColor m_color;
    Variant m_variant;
};

}
