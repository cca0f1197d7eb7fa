#pragma once

#include "OrvelPlatform/Desktop/HostEnvironment.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

struct _GVariant;

namespace orvel {

/// An environment as the bus has it, an a{sv}. Keys that nobody knows are passed over; a value of a wrong type or out
/// of its range, and a name that is not well formed, are badArgument, whose sentence names the key.
Answer<HostEnvironment> hostEnvironment(_GVariant* dictionary);

/// The same the other way: what is present, as a value just made.
[[nodiscard]] _GVariant* environmentValue(const HostEnvironment& environment);

}
