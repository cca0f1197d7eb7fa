#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelDesign/RGBA.h"
#include "OrvelPlatform/Desktop/DesktopAppearance.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// The glyph that a toggle's value names; idle where there is no value or it names none, `fix` where the extension
/// cannot be reached. What is left of a Focus is rounded up to whole minutes, as its texts are, so that the glyph steps
/// with them whenever the value was asked for.
MenuBarOrbState trayGlyph(const std::optional<ControlValue>& value, bool isReachable);

/// The colour of a tray's symbols. Trays do not tell it: on a desktop of the light scheme they are dark, elsewhere
/// light, because panels are dark where nobody chose otherwise.
RGBA trayForeground(const DesktopAppearance& appearance);

/// A template in a colour as trays take it: a pixel is alpha, red, green and blue, a byte each, not premultiplied; row
/// by row from the top left. Clear pixels have the colour too, so that nothing dark shows when the tray scales it.
std::string trayPixels(const TemplateBitmap& bitmap, const RGBA& foreground);

}
