#include "OrvelPlatform/Base/LoadedLibrary.h"

#include <dlfcn.h>
#include <string>

namespace orvel {

namespace {

/// Why the last call failed, in the loader's words, which begin with the file's name.
Fault lastFault(const std::filesystem::path& library)
{
    const char* message = ::dlerror();
    std::string why = message ? message : "cannot be loaded";
    const auto prefix = library.string() + ": ";
    if (why.starts_with(prefix))
        why.erase(0, prefix.size());
    return { library.string(), why };
}

}

std::expected<void*, Fault> loadedSymbol(const std::filesystem::path& library, const char* name)
{
    void* handle = ::dlopen(library.c_str(), RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
    if (!handle)
        return std::unexpected(lastFault(library));
    if (void* found = ::dlsym(handle, name))
        return found;
    return std::unexpected(lastFault(library));
}

}
