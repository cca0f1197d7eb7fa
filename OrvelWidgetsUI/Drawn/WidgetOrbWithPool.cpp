#include "OrvelWidgetsUI/Drawn/WidgetOrbWithPool.h"

#include "OrvelDesign/Drawn/Orb.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/TintedOrb.h"

namespace orvel {

View WidgetOrbWithPool::body(const Environment&) const
{
    const auto orb = isSystemTinted(look) ? View(TintedOrb { .size = size, .look = look, .showsPool = true })
                                          : View(Orb { .size = size, .pose = OrbPose::rest, .showsPool = true });
    return Frame { .width = FrameLength::exactly(box), .height = FrameLength::exactly(box), .content = orb };
}

}
