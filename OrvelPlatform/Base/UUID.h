#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvel {

/// A universally unique identifier. Its text is 8-4-4-4-12 hexadecimal digits, read in either case, written in upper
/// case.
struct UUID {
    std::array<std::uint8_t, 16> bytes;

    /// Absent for any text but exactly that form.
    static std::optional<UUID> fromText(std::string_view text);
    std::string text() const;

    bool operator==(const UUID&) const = default;
};

}
