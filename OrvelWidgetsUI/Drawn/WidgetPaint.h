#pragma once

#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Views/Paint.h"
#include "OrvelWidgetsUI/WidgetColors.h"

namespace orvel {

/// What a canvas paints an ink with in a look; what is cut out erases what it lies on.
Paint paint(const WidgetInk& ink, WidgetLook look, const Environment& outside);

}
