#include "OrvelPlatform/Base/Bundle.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <link.h>
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
    // The loader's own record, because a program's name there is empty, and not what its caller made of argv[0]. It is
    // found without waiting for a library that another thread is loading.
    dl_find_object module {};
    std::error_code error;
    if (::_dl_find_object(const_cast<void*>(address), &module) != 0)
        return main();
    const std::string_view name = module.dlfo_link_map->l_name;
    const auto file = name.empty() ? fs::path() : fs::canonical(name, error);
    return file.empty() || error ? main() : Bundle(file.parent_path());
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
