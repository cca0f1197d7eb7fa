#pragma once

namespace orvel {

/// A share of something that goes from 0 to 1. A late or early frame overshoots, so it is taken for the nearer end;
/// what is no number is the start.
constexpr double clampedProgress(double progress)
{
    if (!(progress > 0))
        return 0;
    return progress < 1 ? progress : 1;
}

}
