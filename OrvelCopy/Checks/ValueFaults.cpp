#include "OrvelCopy/Checks/ValueFaults.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>
#include <span>

#include "OrvelCopy/Lookup/TextPattern.h"

namespace orvel::Copy {

namespace {

using Kind = TextPiece::Kind;

std::vector<TextPiece> pieces(std::string_view text)
{
    std::vector<TextPiece> pieces;
    TextPatternReader reader(text);
    for (auto piece = reader.next(); piece.kind != Kind::end; piece = reader.next())
        pieces.push_back(piece);
    return pieces;
}

std::vector<TextPiece> insertions(std::string_view text)
{
    auto found = pieces(text);
    std::erase_if(found, [](const TextPiece& piece) { return !piece.isInsertion(); });
    return found;
}

std::string_view written(Kind kind) { return kind == Kind::integer ? "%lld" : "%@"; }

std::vector<std::string> faultsWithoutValues(std::string_view translation)
{
    std::vector<std::string> faults;
    for (const auto& piece : insertions(translation))
        faults.push_back(fmt::format("has {}, and there is no value to put in", written(piece.kind)));
    if (translation.contains("%%"))
        faults.emplace_back("shows both signs of %%, since no value is put in");
    return faults;
}

std::optional<std::string> faultOf(const TextPiece& piece, std::span<const TextPiece> values)
{
    if (piece.argument >= values.size())
        return fmt::format("puts in value {} of {}", piece.argument + 1, values.size());
    const auto expected = values[piece.argument].kind;
    if (piece.kind != expected)
        return fmt::format(
            "has {} for value {}, which is {}", written(piece.kind), piece.argument + 1, written(expected));
    return std::nullopt;
}

bool isLeftOut(std::size_t value, std::span<const TextPiece> used)
{
    return std::ranges::find(used, value, &TextPiece::argument) == used.end();
}

}

std::vector<std::string> valueFaults(std::string_view key, std::string_view translation, bool mayLeaveNumberOut)
{
    const auto values = insertions(key);
    if (values.empty())
        return faultsWithoutValues(translation);
    std::vector<std::string> faults;
    const auto used = insertions(translation);
    const auto all = pieces(translation);
    if (!all.empty() && all.back().kind == Kind::fault)
        faults.emplace_back("has a percent sign that means nothing (a plain one is %%)");
    for (const auto& piece : used) {
        if (auto fault = faultOf(piece, values))
            faults.push_back(*std::move(fault));
    }
    const auto numbered = std::ranges::count_if(used, &TextPiece::hasPosition);
    if (numbered > 0 && static_cast<std::size_t>(numbered) < used.size())
        faults.emplace_back("numbers some of its values and not the others");
    for (std::size_t value = 0; value < values.size(); ++value) {
        if (isLeftOut(value, used) && !(mayLeaveNumberOut && values[value].kind == Kind::integer))
            faults.push_back(fmt::format("leaves out value {}, {}", value + 1, written(values[value].kind)));
    }
    return faults;
}

std::string withoutValues(std::string_view text)
{
    if (valueCount(text) == 0)
        return std::string(text);
    std::string rest;
    for (const auto& piece : pieces(text))
        rest += piece.literal;
    return rest;
}

std::size_t valueCount(std::string_view text) { return insertions(text).size(); }

}
