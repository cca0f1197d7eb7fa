#pragma once

#include <filesystem>
#include <stdexcept>
#include <stdlib.h>
#include <string>

/// A folder of a test's own, deleted with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder() : m_path((std::filesystem::temp_directory_path() / "orvel-tests-XXXXXX").string())
    {
        if (!::mkdtemp(m_path.data()))
            throw std::runtime_error("no temporary folder can be made");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::filesystem::path path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return path() / name; }

private:
    std::string m_path;
};
