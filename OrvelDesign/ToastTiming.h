#pragma once

namespace orvel {

/// How long a toast stays and how long it fades, in seconds.
namespace ToastTiming {
inline constexpr double visible = 3;
inline constexpr double fade = 0.3;
}

}
