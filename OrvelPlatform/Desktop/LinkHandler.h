#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

/// The application that the user, or else the desktop, has chosen for URLs of a scheme, as its desktop entry describes
/// it.
struct LinkHandler {
    std::string id; // "app.orvel.Orvel.desktop"
    std::string name;
    bool isBusActivatable;
    std::vector<std::string> command; // with the field codes of its Exec key; empty: none that can be run
    std::optional<std::string> folder; // to run in

    /// Absent when nothing opens such URLs.
    static std::optional<LinkHandler> forScheme(const std::string& scheme);

    /// The application's name on the bus, if its desktop entry's name can be one.
    std::optional<std::string> busName() const;
    /// The path of its object: that name with slashes for dots and underscores for hyphens.
    std::string objectPath() const;

    /// The command for one URL. Other field codes are left out.
    std::vector<std::string> commandFor(std::string_view url) const;

    bool operator==(const LinkHandler&) const = default;
};

}
