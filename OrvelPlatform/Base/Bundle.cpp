#include "OrvelPlatform/Base/Bundle.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <system_error>

#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Base/Json.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestInformation = 1 << 20;

bool isBundleName(const fs::path& folder)
{
    constexpr std::array<std::string_view, 3> endings { ".app", ".appex", ".bundle" };
    return std::ranges::find(endings, folder.extension().string()) != endings.end();
}

fs::path executable()
{
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

}

Bundle Bundle::main()
{
    const auto own = executable().parent_path();
    for (auto folder = own; folder.has_relative_path(); folder = folder.parent_path()) {
        if (isBundleName(folder))
            return Bundle(folder);
    }
    return Bundle(own);
}

Bundle Bundle::holding(const void* address)
{
    Dl_info module {};
    std::error_code error;
    if (::dladdr(address, &module) == 0 || !module.dli_fname)
        return main();
    const auto file = fs::canonical(module.dli_fname, error);
    return error || file == executable() ? main() : Bundle(file.parent_path());
}

std::optional<Bundle> Bundle::at(const fs::path& path)
{
    std::error_code error;
    if (!fs::is_directory(path, error))
        return std::nullopt;
    return Bundle(path);
}

std::optional<std::string> Bundle::information(std::string_view key) const
{
    const auto bytes = readFile(m_path / "Info.json", longestInformation);
    if (!bytes)
        return std::nullopt;
    const auto document = JsonDocument::parse(*bytes);
    if (!document || !document->root().isObject())
        return std::nullopt;
    const auto value = JsonObjectReader(document->root()).find(key);
    const auto text = value ? value->text() : std::nullopt;
    return text.transform([](std::string_view found) { return std::string(found); });
}

}
