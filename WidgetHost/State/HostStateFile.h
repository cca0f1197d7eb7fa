#pragma once

#include <expected>
#include <filesystem>
#include <optional>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "WidgetHost/State/HostState.h"

namespace orvel {

/// The file that keeps a host's state: JSON with the version of its form. A host starts whatever is wrong with it, and
/// nothing that somebody had is ever written over: a file that is broken, or of a newer version, is kept under another
/// name, and one that the system does not let us read is left alone, unwritten.
class HostStateFile {
public:
    static constexpr std::int32_t version = 1;

    /// `widget-host.json` in the folder `orvel` of the user's settings.
    static std::filesystem::path standardPath();

    explicit HostStateFile(std::filesystem::path path = standardPath()) : m_path(std::move(path)) { }

    struct Reading {
        HostState state; // empty where there is no good file
        std::optional<std::string> warning; // for people: what is wrong with the file, and where it is now
    };
    Reading read();

    /// Replaces the file in one step. Refused when it could neither be read nor kept.
    [[nodiscard]] std::expected<void, Fault> write(const HostState& state) const;

private:
    std::string keepAside(const Fault& fault);
    std::string leaveAlone(const std::string& why);

    std::filesystem::path m_path;
    std::optional<std::string> m_refusal; // why it must not be written
};

}
