#pragma once

#include <filesystem>

struct _FcConfig;

namespace orvel {

/// Adds a folder's typefaces to a font configuration. A folder that is not there adds none.
void addFonts(_FcConfig* configuration, const std::filesystem::path& folder);

/// Adds one typeface. A file that is not there adds none.
void addFont(_FcConfig* configuration, const std::filesystem::path& file);

/// Adds a folder's typefaces to those that the process's toolkit writes with, beside the system's.
void addFontsToProcess(const std::filesystem::path& folder);

}
