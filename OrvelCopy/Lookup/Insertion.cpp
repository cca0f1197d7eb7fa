#include "OrvelCopy/Lookup/Insertion.h"

#include "OrvelCopy/Lookup/TextPattern.h"

namespace orvel::Copy {

namespace {

constexpr std::string_view firstStrongIsolate = "\u2068";
constexpr std::string_view popDirectionalIsolate = "\u2069";

/// A table comes from a file: without a bound it could ask for a value a million times.
constexpr auto mostInsertions = 32;

bool opensIsolate(std::string_view text)
{
    return text.starts_with("\u2066") || text.starts_with("\u2067") || text.starts_with(firstStrongIsolate);
}

/// Whether the whole text is one isolate already: what its first character opens, its last one closes.
bool isIsolated(std::string_view text)
{
    if (!text.starts_with(firstStrongIsolate) || !text.ends_with(popDirectionalIsolate))
        return false;
    auto depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto rest = text.substr(at);
        depth += opensIsolate(rest);
        depth -= rest.starts_with(popDirectionalIsolate);
        if (depth == 0)
            return rest.size() == popDirectionalIsolate.size();
    }
    return false;
}

void appendText(std::string& result, std::string_view text, Isolation isolation)
{
    const auto isolates = isolation == Isolation::firstStrongIsolates && !text.empty() && !isIsolated(text);
    if (isolates)
        result += firstStrongIsolate;
    result += text;
    if (isolates)
        result += popDirectionalIsolate;
}

/// False where there is no such value, or it is of the other kind.
bool appendInsertion(
    std::string& result, const TextPiece& piece, std::span<const Insertion> values, Isolation isolation)
{
    if (piece.argument >= values.size())
        return false;
    const auto& value = values[piece.argument];
    if (const auto* text = std::get_if<std::string_view>(&value); text && piece.kind == TextPiece::Kind::text) {
        appendText(result, *text, isolation);
        return true;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value); number && piece.kind == TextPiece::Kind::integer) {
        result += std::to_string(*number);
        return true;
    }
    return false;
}

}

std::optional<std::string> withInsertions(
    std::string_view pattern, std::span<const Insertion> values, Isolation isolation)
{
    std::string result;
    auto insertions = 0;
    TextPatternReader reader(pattern);
    for (auto piece = reader.next(); piece.kind != TextPiece::Kind::end; piece = reader.next()) {
        if (piece.kind == TextPiece::Kind::literal)
            result += piece.literal;
        else if (!piece.isInsertion() || ++insertions > mostInsertions
            || !appendInsertion(result, piece, values, isolation))
            return std::nullopt;
    }
    return result;
}

}
