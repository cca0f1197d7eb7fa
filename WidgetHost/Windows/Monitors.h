#pragma once

#include <vector>

#include "WidgetHost/Windows/Places.h"

struct _GdkMonitor;

namespace orvel {

/// The monitors there are now, as the toolkit knows them.
std::vector<Output> monitors();

/// The monitor at an index of that list; null when it went meanwhile.
_GdkMonitor* monitor(std::size_t index);

}
