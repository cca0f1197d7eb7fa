#pragma once

#include <cstddef>
#include <string_view>

namespace orvel::Copy {

/// One piece of a text with insertions.
struct TextPiece {
    enum class Kind {
        end,
        literal, // characters that stand for themselves
        text, // %@: an inserted text
        integer, // %lld: an inserted whole number
        fault, // a percent sign that means nothing; nothing after it is read
    };
    Kind kind;
    std::string_view literal {};
    std::size_t argument = 0; // which insertion, the first is 0
    bool hasPosition = false; // written %1$@, in an order of its own

    constexpr bool isInsertion() const { return kind == Kind::text || kind == Kind::integer; }
};

/// Reads a text with insertions piece by piece: %@ and %lld take the arguments in turn, %1$@ to %9$lld name theirs, and
/// %% is a percent sign. The same reader serves the compiler's check of our keys and the insertion of values into what
/// translators write, so that the two cannot disagree.
class TextPatternReader {
public:
    constexpr explicit TextPatternReader(std::string_view pattern) : m_rest(pattern) { }

    constexpr TextPiece next()
    {
        if (m_rest.empty())
            return { .kind = TextPiece::Kind::end };
        if (m_rest.front() != '%')
            return { .kind = TextPiece::Kind::literal, .literal = take(m_rest.find('%')) };
        take(1);
        if (m_rest.starts_with('%'))
            return { .kind = TextPiece::Kind::literal, .literal = take(1) };
        return insertion();
    }

private:
    constexpr std::string_view take(std::size_t count)
    {
        const auto taken = m_rest.substr(0, count);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    constexpr TextPiece insertion()
    {
        const auto hasPosition = m_rest.size() > 1 && m_rest[0] >= '1' && m_rest[0] <= '9' && m_rest[1] == '$';
        const auto argument = hasPosition ? static_cast<std::size_t>(take(2).front() - '1') : m_next++;
        for (const auto& [mark, kind] :
            { Mark { "@", TextPiece::Kind::text }, Mark { "lld", TextPiece::Kind::integer } }) {
            if (m_rest.starts_with(mark)) {
                take(mark.size());
                return { .kind = kind, .argument = argument, .hasPosition = hasPosition };
            }
        }
        m_rest = {};
        return { .kind = TextPiece::Kind::fault };
    }

    struct Mark {
        std::string_view text;
        TextPiece::Kind kind;
    };

    std::string_view m_rest;
    std::size_t m_next = 0;
};

}
