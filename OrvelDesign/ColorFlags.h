#pragma once

namespace orvel {

class Environment;

/// What a colour is resolved for. A value with nothing set is the light appearance with normal contrast, which is also
/// what a colour falls back to where an appearance is unknown.
struct ColorFlags {
    bool dark = false;
    bool increaseContrast = false;
    bool reduceTransparency = false;

    /// The flags that hold in an environment. The application's own settings can force contrast and transparency on;
    /// they never force them off against the system.
    static ColorFlags in(const Environment& environment);

    bool operator==(const ColorFlags&) const = default;
};

}
