#include "OrvelPlatform/Base/ApplicationSupport.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

fs::path absolutePathFrom(const char* variable)
{
    const auto* value = std::getenv(variable);
    const fs::path path(value ? value : "");
    return path.is_absolute() ? path : fs::path();
}

fs::path home()
{
    if (auto path = absolutePathFrom("HOME"); !path.empty())
        return path;
    std::array<char, 16384> texts;
    passwd entry {};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &entry, texts.data(), texts.size(), &found);
    return found ? found->pw_dir : "/";
}

}

fs::path applicationSupport()
{
    if (auto path = absolutePathFrom("XDG_DATA_HOME"); !path.empty())
        return path;
    return home() / ".local" / "share";
}

fs::path applicationConfiguration()
{
    if (auto path = absolutePathFrom("XDG_CONFIG_HOME"); !path.empty())
        return path;
    return home() / ".config";
}

}
