#pragma once

#include <optional>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelWidgets/EntryViews.h"
#include "OrvelWidgetsUI/WidgetDrawing.h"

namespace orvel {

/// What a host's environment means to one request. Where the host says nothing, the process's own surroundings hold as
/// they are at this moment.

/// The zone's calendar.
Calendar calendar(const HostEnvironment& environment);

/// The language of words: the first of the host's that the catalogue has, else English. Absent: the process's own.
std::optional<Locale> wordsLocale(const HostEnvironment& environment);

/// What the entry views ask of their place.
EntryPlace entryPlace(const HostEnvironment& environment);

/// What the design system reads: the appearance, contrast, motion and transparency, and the sizes of text.
Environment designEnvironment(const HostEnvironment& environment);

/// A shown widget as the host wants it drawn.
WidgetDrawing widgetDrawing(const ShownWidget& shown, const HostEnvironment& environment);

}
