#include "OrvelWidgetsUI/Drawn/WidgetOrb.h"

#include "OrvelDesign/Drawn/Orb.h"
#include "OrvelWidgetsUI/Drawn/TintedOrb.h"

namespace orvel {

View WidgetOrb::body(const Environment&) const
{
    if (isSystemTinted(look))
        return TintedOrb { .size = size, .look = look, .showsPool = false };
    return Orb { .size = size, .pose = OrbPose::rest, .showsPool = false };
}

}
