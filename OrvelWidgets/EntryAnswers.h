#pragma once

#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "OrvelWidgets/OrvelEntry.h"

namespace orvel {

/// An entry as a host keeps it.
Answer<ExtensionEntry> extensionEntry(const OrvelEntry& entry);

/// A timeline as a host keeps it: entries whose moments differ in nothing but their date share one.
Answer<ExtensionTimeline> extensionTimeline(OrvelTimeline timeline);

}
