#pragma once

#include <vector>

#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// The bundle's members as a host gets them, in the bundle's order.
std::vector<ExtensionMember> extensionMembers();

}
