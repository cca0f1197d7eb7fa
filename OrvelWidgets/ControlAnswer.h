#pragma once

#include <optional>

#include "OrvelDesign/ColorFlags.h"
#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "OrvelShared/WidgetSnapshot.h"

namespace orvel {

/// The Breathe button as a host gets it. It changes only when the application writes another snapshot.
ControlValue breatheControlValue(const std::optional<WidgetSnapshot>& snapshot);

/// The Focus toggle as a host gets it, with the menu bar's glyph. It carries the instant from which it shows something
/// else: when a minute is over, a phase begins, or something is let through no longer.
ControlValue focusControlValue(
    const std::optional<WidgetSnapshot>& snapshot, Date now, const Calendar& calendar, ColorFlags appearance);

}
