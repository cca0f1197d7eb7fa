#pragma once

#include "Tools/orvelctl/pictures/GalleryPage.h"

namespace orvelctl {

/// Sections of the design system: colours, type, the orb, the glyph, surfaces.
void addPalette(GalleryPage& page, const orvel::Environment& base);
void addType(GalleryPage& page, const orvel::Environment& base);
void addOrb(GalleryPage& page, const orvel::Environment& base);
void addGlyph(GalleryPage& page, const orvel::Environment& base);
void addSurfaces(GalleryPage& page, const orvel::Environment& base);

}
