#pragma once

#include "WidgetHost/Desk/Desk.h"
#include "WidgetHost/Gallery/GalleryContent.h"

namespace orvel {

/// What the gallery shows of a desk.
GalleryContent galleryContent(const Desk& desk);

}
