#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orvel {

/// A zone's clocks in one line, as the variable TZ and the ends of zone files have it: "CET-1CEST,M3.5.0,M10.5.0/3".
struct PosixRule {
    std::string standardName; // without the angle brackets
    std::chrono::seconds standardOffset; // east of UTC: the opposite of what is written
    std::string text; // with the dates of summer time, where it has one

    bool operator==(const PosixRule&) const = default;
};

/// Reads a rule; absent for anything else. Where the dates of summer time or its end are left open, they are those that
/// the C library assumes: M3.2.0,M11.1.0.
std::optional<PosixRule> posixRule(std::string_view text);

}
