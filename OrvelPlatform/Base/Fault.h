#pragma once

#include <string>
#include <system_error>

namespace orvel {

/// Why something could not be read or written: what was asked of which thing, in words that a person can act on.
///
/// `where` names a file, or the path to a value inside one ("phases[3].state.block._0.level"); it may be empty.
/// `cause` is the operating system's reason where it gave one, so that a caller can tell a missing file from a broken
/// one.
struct Fault {
    std::string where;
    std::string why;
    std::errc cause {};

    /// "where: why", or the reason alone where there is no place.
    std::string text() const { return where.empty() ? why : where + ": " + why; }

    bool operator==(const Fault&) const = default;
};

}
