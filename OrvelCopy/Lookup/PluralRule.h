#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvel::Copy {

/// Which of a language's plural forms a number takes, as a table states it: "nplurals=2; plural=(n != 1);".
///
/// The rule is an expression of C over n with whole numbers and without assignments or calls. It comes from a file, so
/// that its length and its nesting are bounded.
class PluralRule {
public:
    /// The rule of English and most of its relatives, which holds where a table states none.
    static PluralRule singularForOne();

    /// Absent for what is no rule.
    static std::optional<PluralRule> parse(std::string_view statement);

    /// How many forms the language has.
    std::size_t forms() const { return m_forms; }

    /// The form for a count, the first is 0. Absent where the rule divides by zero or names a form that there is not.
    std::optional<std::size_t> form(std::uint64_t count) const;

private:
    PluralRule(std::size_t forms, std::string_view expression) : m_forms(forms), m_expression(expression) { }

    std::size_t m_forms;
    std::string m_expression;
};

}
