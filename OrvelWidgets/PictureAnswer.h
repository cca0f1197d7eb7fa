#pragma once

#include "OrvelPlatform/Base/URL.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "OrvelWidgetsUI/WidgetDrawing.h"

namespace orvel {

/// A drawn widget as a host gets it, with the link that it opens.
ExtensionPicture extensionPicture(DrawnWidget drawn, const URL& link);

}
