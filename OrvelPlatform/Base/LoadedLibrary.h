#pragma once

#include <expected>
#include <filesystem>

#include "OrvelPlatform/Base/Fault.h"

namespace orvel {

/// A function or value of a shared library, which is loaded for it and stays loaded to the end of the process. Its
/// other symbols are seen by nobody else. The fault tells what is missing.
std::expected<void*, Fault> loadedSymbol(const std::filesystem::path& library, const char* name);

}
