#pragma once

#include <optional>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// The orb that blooms once whenever its trigger changes, to acknowledge an action: it brightens, and a ring of light
/// leaves it and fades.
///
/// A view knows no time: whoever redraws it says in `elapsed` how long the bloom has been going on.
struct BloomingOrb {
    /// What is animated.
    struct Values {
        double brightness;
        double bloomScale;
        double bloomOpacity;

        /// While nothing blooms.
        static const Values rest;

        /// At a time since the trigger changed, which lasts for `Tokens::Duration::bloom`; before and after it, at
        /// rest. Under reduced motion the light stands still and brightens with the orb.
        static Values at(Seconds elapsed, bool reduceMotion);

        bool operator==(const Values&) const = default;
    };

    double size; // points
    std::optional<Seconds> elapsed; // absent: nothing blooms

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

inline constexpr BloomingOrb::Values BloomingOrb::Values::rest {
    .brightness = 1, .bloomScale = 0.7, .bloomOpacity = 0
};

/// Which bloom is going on. The trigger that is seen first starts none; every change starts a bloom from its beginning.
class BloomTrigger {
public:
    void observe(int trigger, Seconds now);

    /// How long the bloom has been going on; absent when none is.
    std::optional<Seconds> elapsed(Seconds now) const;

private:
    std::optional<int> m_trigger;
    std::optional<Seconds> m_start;
};

}
