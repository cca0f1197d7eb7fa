#pragma once

namespace orvel {

/// The application's own accessibility options. Wherever one matters, it counts as on when either this record or the
/// system says so.
struct OrvelAccessibility {
    bool reduceMotion = false; // the orb and other motion stand still
    bool reduceTransparency = false; // translucent surfaces take their solid variants
    bool increaseContrast = false; // colours take their high-contrast variants
    bool usesPersonalAccent = false; // the user chose an accent colour of their own in the system

    /// Whether the grain may lie over backgrounds: it costs legibility, so either option drops it.
    constexpr bool showsTexture() const { return !reduceTransparency && !increaseContrast; }

    bool operator==(const OrvelAccessibility&) const = default;
};

}
