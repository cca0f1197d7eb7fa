#include "OrvelDesign/TextMagnification.h"

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/MacTypeRole.h"

namespace orvel {

double textMagnification(const Environment& environment)
{
    const auto bigger = environment.get<OrvelBiggerTextKey>();
    const auto scale = environment.get<OrvelSystemTextScaleKey>();
    return metrics(MacTypeRole::body, bigger, scale).size / spec(MacTypeRole::body).size;
}

}
