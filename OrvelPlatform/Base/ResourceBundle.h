#pragma once

#include <string_view>

#include "OrvelPlatform/Base/Bundle.h"

namespace orvel {

/// The resource bundle `name` ("OrvelKit_OrvelCopy") of the module in which `address` lies.
///
/// Asked for in this order: the main bundle's resources folder, the resources folder of the bundle that holds the
/// module, the main bundle's own folder. A program that ships without its resources cannot go on: where none of them
/// has it, the process stops with "unable to find bundle named …".
Bundle resourceBundle(std::string_view name, const void* address);

}
