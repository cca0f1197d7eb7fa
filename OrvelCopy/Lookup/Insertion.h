#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace orvel::Copy {

/// A value that is put into a text.
using Insertion = std::variant<std::string_view, std::int64_t>;

/// Whether inserted texts are kept apart from the text around them, so that a name written in one direction does not
/// disturb a sentence written in the other.
enum class Isolation { none, firstStrongIsolates };

/// `pattern` with the values put in; whole numbers in plain decimal digits. What is inserted is never read again.
///
/// Absent where the pattern does not fit: a percent sign that means nothing, a value of another kind or one that there
/// is not, or more insertions than any text has. A pattern may leave values out.
std::optional<std::string> withInsertions(
    std::string_view pattern, std::span<const Insertion> values, Isolation isolation);

}
