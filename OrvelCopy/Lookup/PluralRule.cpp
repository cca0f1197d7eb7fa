#include "OrvelCopy/Lookup/PluralRule.h"

#include <algorithm>
#include <charconv>
#include <functional>

namespace orvel::Copy {

namespace {

constexpr std::size_t longestExpression = 1024;
constexpr auto deepestNesting = 32;
constexpr std::size_t mostForms = 16;

/// Absent: there is no such number, because of a division by zero.
using Value = std::optional<std::uint64_t>;

/// Evaluates an expression while it reads it. Both branches of every choice are read, so that whether it is well formed
/// does not depend on n; a division by zero only counts where it is chosen.
class Evaluation {
public:
    Evaluation(std::string_view expression, std::uint64_t n) : m_rest(expression), m_n(n)
    {
        m_value = choice();
        skipSpaces();
        m_isWellFormed = m_isWellFormed && m_rest.empty();
    }

    bool isWellFormed() const { return m_isWellFormed; }
    Value value() const { return m_isWellFormed ? m_value : std::nullopt; }

private:
    struct Operator {
        std::string_view mark;
        int precedence;
        Value (*apply)(Value left, Value right);
    };

    template <auto Combine>
    static Value strict(Value left, Value right)
    {
        return left && right ? Value(Combine(*left, *right)) : std::nullopt;
    }

    static Value either(Value left, Value right)
    {
        if (!left || *left)
            return left ? Value(1) : left;
        return right ? Value(*right != 0) : right;
    }

    static Value both(Value left, Value right)
    {
        if (!left || !*left)
            return left;
        return right ? Value(*right != 0) : right;
    }

    static Value quotient(Value left, Value right) { return left && right && *right ? Value(*left / *right) : Value(); }
    static Value remainder(Value left, Value right)
    {
        return left && right && *right ? Value(*left % *right) : Value();
    }

    /// The longer marks stand before those they begin with.
    static constexpr Operator operators[] = {
        { "||", 1, either },
        { "&&", 2, both },
        { "==", 3, strict<std::equal_to {}> },
        { "!=", 3, strict<std::not_equal_to {}> },
        { "<=", 4, strict<std::less_equal {}> },
        { ">=", 4, strict<std::greater_equal {}> },
        { "<", 4, strict<std::less {}> },
        { ">", 4, strict<std::greater {}> },
        { "+", 5, strict<std::plus {}> },
        { "-", 5, strict<std::minus {}> },
        { "*", 6, strict<std::multiplies {}> },
        { "/", 6, quotient },
        { "%", 6, remainder },
    };
    static constexpr auto tightest = 7;

    void skipSpaces() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t"), m_rest.size())); }

    bool skip(std::string_view mark)
    {
        skipSpaces();
        if (!m_rest.starts_with(mark))
            return false;
        m_rest.remove_prefix(mark.size());
        return true;
    }

    Value fail()
    {
        m_isWellFormed = false;
        m_rest = {};
        return std::nullopt;
    }

    Value choice()
    {
        if (++m_depth > deepestNesting)
            return fail();
        auto value = operation(1);
        if (skip("?")) {
            const auto ifTrue = choice();
            if (!skip(":"))
                return fail();
            const auto ifFalse = choice();
            value = value ? (*value ? ifTrue : ifFalse) : value;
        }
        --m_depth;
        return value;
    }

    const Operator* takeOperator(int precedence)
    {
        for (const auto& candidate : operators) {
            if (candidate.precedence == precedence && skip(candidate.mark))
                return &candidate;
        }
        return nullptr;
    }

    Value operation(int precedence)
    {
        if (precedence == tightest)
            return operand();
        auto value = operation(precedence + 1);
        while (const auto* taken = takeOperator(precedence))
            value = taken->apply(value, operation(precedence + 1));
        return value;
    }

    Value operand()
    {
        auto isNegated = false;
        auto negations = 0;
        for (; skip("!"); ++negations)
            isNegated = !isNegated;
        auto value = atom();
        if (value && negations > 0)
            value = isNegated ? *value == 0 : *value != 0;
        return value;
    }

    Value atom()
    {
        if (skip("n"))
            return m_n;
        if (skip("(")) {
            const auto value = choice();
            return skip(")") ? value : fail();
        }
        std::uint64_t number = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
        if (error != std::errc())
            return fail();
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return number;
    }

    std::string_view m_rest;
    std::uint64_t m_n;
    int m_depth = 0;
    bool m_isWellFormed = true;
    Value m_value;
};

/// What stands after `name=`, up to the semicolon.
std::optional<std::string_view> assigned(std::string_view statement, std::string_view name)
{
    const auto at = statement.find(name);
    if (at == std::string_view::npos)
        return std::nullopt;
    const auto value = statement.substr(at + name.size());
    const auto start = std::min(value.find_first_not_of(' '), value.size());
    return value.substr(start, value.find(';', start) - start);
}

}

PluralRule PluralRule::singularForOne()
{
    return { 2, "n != 1" };
}

std::optional<PluralRule> PluralRule::parse(std::string_view statement)
{
    const auto forms = assigned(statement, "nplurals=");
    const auto expression = assigned(statement, "plural=");
    if (!forms || !expression || expression->size() > longestExpression)
        return std::nullopt;
    std::size_t count = 0;
    const auto [end, error] = std::from_chars(forms->data(), forms->data() + forms->size(), count);
    const auto isNumber = error == std::errc() && count >= 1 && count <= mostForms;
    if (!isNumber || !Evaluation(*expression, 1).isWellFormed())
        return std::nullopt;
    return PluralRule(count, *expression);
}

std::optional<std::size_t> PluralRule::form(std::uint64_t count) const
{
    const auto value = Evaluation(m_expression, count).value();
    return value && *value < m_forms ? std::optional<std::size_t>(*value) : std::nullopt;
}

}
