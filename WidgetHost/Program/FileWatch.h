#pragma once

#include <filesystem>
#include <functional>
#include <memory>

struct _GFileMonitor;

namespace orvel {

/// Tells when a file, or the link of that name, is another one. Nothing is polled.
class FileWatch {
public:
    /// `changed` is called on the program's loop, perhaps several times for one change. A file that cannot be watched
    /// never changes.
    FileWatch(const std::filesystem::path& path, std::function<void()> changed);
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    ~FileWatch();

private:
    struct Release {
        void operator()(_GFileMonitor* monitor) const;
    };

    std::function<void()> m_changed;
    std::unique_ptr<_GFileMonitor, Release> m_monitor;
};

}
