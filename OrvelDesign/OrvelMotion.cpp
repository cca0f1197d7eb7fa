#include "OrvelDesign/OrvelMotion.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/Progress.h"

namespace orvel::OrvelMotion {

namespace Duration = Tokens::Duration;

double easeBreath(double progress)
{
    return clampedProgress(breathCurve.value(progress));
}

double cueOpacity(Seconds elapsed, Seconds phaseDuration)
{
    const double coming = elapsed.count() / Duration::cueFadeIn;
    const double leaving = (phaseDuration - elapsed).count() / Duration::cueFadeOut;
    return std::min(fadeCurve.value(coming), fadeCurve.value(leaving));
}

double menuBarBreath(Seconds at, bool reduceMotion)
{
    if (reduceMotion)
        return 1;
    const double turns = at.count() / Duration::macOrbBreathe;
    const double turn = turns - std::floor(turns); // also before the epoch
    return easeBreath(turn < 0.5 ? 2 * turn : 2 * (1 - turn));
}

}
