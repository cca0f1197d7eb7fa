#pragma once

#include <filesystem>
#include <string_view>

struct _FcConfig;

namespace orvel {

/// Adds those of a folder's typefaces to a font configuration whose files' names begin so. A folder that is not there
/// adds none.
void addFonts(_FcConfig* configuration, const std::filesystem::path& folder, std::string_view begin = {});

/// Adds a folder's typefaces to those that the process's toolkit writes with, beside the system's.
void addFontsToProcess(const std::filesystem::path& folder);

}
