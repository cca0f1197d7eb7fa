#pragma once

#include <filesystem>

namespace orvel {

/// The user's folder for data of applications: `$XDG_DATA_HOME` when that is an absolute path, else `~/.local/share`.
/// It need not exist.
std::filesystem::path applicationSupport();

/// The user's folder for settings of applications: `$XDG_CONFIG_HOME` when that is an absolute path, else `~/.config`.
/// It need not exist.
std::filesystem::path applicationConfiguration();

}
