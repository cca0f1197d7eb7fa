#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orvel {

/// A folder `Name.app`, `Name.appex` or `Name.bundle` with an information dictionary (`Info.json`) and `Resources/`.
class Bundle {
public:
    /// The bundle of the running program: the nearest folder around the executable (links resolved) whose name says
    /// that it is a bundle, else the executable's own folder.
    static Bundle main();

    /// The bundle that holds a module: the folder of the shared library in which `address` lies, or the main bundle
    /// where the module is linked into the program.
    static Bundle holding(const void* address);

    /// A bundle opens when its folder exists.
    static std::optional<Bundle> at(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path resources() const { return m_path / "Resources"; }

    /// The text under a key of the information dictionary, read afresh; absent without one and for any other value.
    std::optional<std::string> information(std::string_view key) const;

private:
    explicit Bundle(std::filesystem::path path) : m_path(std::move(path)) { }

    std::filesystem::path m_path;
};

}
