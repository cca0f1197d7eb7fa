#include "OrvelCopy/Checks/TypographyFaults.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <optional>
#include <utility>

#include "OrvelCopy/Checks/ValueFaults.h"

namespace orvel::Copy {

namespace {

using Fault = std::optional<std::string>;

constexpr std::array<std::string_view, 2> noBreakSpaces { "\u00A0", "\u202F" };
constexpr std::array<std::string_view, 5> spaces { " ", "\u00A0", "\u202F", "\n", "\t" };
constexpr std::array<std::string_view, 9> closers { "”", "“", "»", "」", "』", "’", ")", "]", "）" };
constexpr std::array<std::string_view, 11> directionMarks { "\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C",
    "\u202D", "\u202E", "\u2066", "\u2067", "\u2068" };

enum class Ending { none, stop, question, exclamation, colon, ellipsis, joint };

constexpr std::array<std::pair<std::string_view, Ending>, 14> endings { {
    { "…", Ending::ellipsis },
    { ".", Ending::stop },
    { "。", Ending::stop },
    { "۔", Ending::stop },
    { "।", Ending::stop },
    { "?", Ending::question },
    { "？", Ending::question },
    { "؟", Ending::question },
    { "!", Ending::exclamation },
    { "！", Ending::exclamation },
    { ":", Ending::colon },
    { "：", Ending::colon },
    { "·", Ending::joint },
    { "・", Ending::joint },
} };

template <std::size_t count>
std::size_t sizeOfEnd(std::string_view text, const std::array<std::string_view, count>& marks)
{
    const auto found = std::ranges::find_if(marks, [&](std::string_view mark) { return text.ends_with(mark); });
    return found == marks.end() ? 0 : found->size();
}

template <std::size_t count>
std::size_t sizeOfStart(std::string_view text, const std::array<std::string_view, count>& marks)
{
    const auto found = std::ranges::find_if(marks, [&](std::string_view mark) { return text.starts_with(mark); });
    return found == marks.end() ? 0 : found->size();
}

std::string_view trailingSpaces(std::string_view text)
{
    auto rest = text;
    while (const auto size = sizeOfEnd(rest, spaces))
        rest.remove_suffix(size);
    return text.substr(rest.size());
}

std::string_view leadingSpaces(std::string_view text)
{
    auto rest = text;
    while (const auto size = sizeOfStart(rest, spaces))
        rest.remove_prefix(size);
    return text.substr(0, text.size() - rest.size());
}

/// The text without what closes a quotation after its last mark.
std::string_view withoutClosers(std::string_view text)
{
    while (const auto size = std::max(sizeOfEnd(text, spaces), sizeOfEnd(text, closers)))
        text.remove_suffix(size);
    return text;
}

Ending ending(std::string_view text)
{
    const auto end = withoutClosers(text);
    for (const auto& [mark, kind] : endings) {
        if (end.ends_with(mark))
            return kind;
    }
    return Ending::none;
}

std::string_view nameOf(Ending ending)
{
    constexpr std::array<std::string_view, 7> names { "", "full stop", "question mark", "exclamation mark", "colon",
        "ellipsis (…)", "joint (·)" };
    return names[static_cast<std::size_t>(ending)];
}

Fault lostSpaces(std::string_view key, std::string_view translation)
{
    if (leadingSpaces(key) != leadingSpaces(translation))
        return "begins with other spaces than its key";
    if (trailingSpaces(key) != trailingSpaces(translation))
        return "ends with other spaces than its key";
    return std::nullopt;
}

Fault lostEnding(std::string_view key, std::string_view translation)
{
    const auto wanted = ending(key);
    // A Japanese question may say so with a word instead of a mark.
    const auto asks = wanted == Ending::question && withoutClosers(translation).ends_with("か。");
    if (wanted == Ending::none || wanted == ending(translation) || asks)
        return std::nullopt;
    return fmt::format("has lost the {} at its end", nameOf(wanted));
}

std::size_t occurrences(std::string_view text, std::string_view mark)
{
    std::size_t count = 0;
    for (auto at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + mark.size()))
        ++count;
    return count;
}

std::size_t noBreakSpacesIn(std::string_view text)
{
    std::size_t count = 0;
    for (const auto space : noBreakSpaces)
        count += occurrences(text, space);
    return count;
}

Fault lostNoBreakSpace(std::string_view key, std::string_view translation, const Typography& typography)
{
    // A form for exactly one may leave the number out, and its space with it.
    const auto isWhole = valueCount(translation) >= valueCount(key);
    if (!typography.hasSpacesBetweenWords || !isWhole || noBreakSpacesIn(translation) >= noBreakSpacesIn(key))
        return std::nullopt;
    return "has lost a no-break space";
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// A colon within a time of day or an address.
bool isWithinWord(std::string_view before, std::string_view after)
{
    return after.starts_with('/')
        || (!before.empty() && !after.empty() && isDigit(before.back()) && isDigit(after.front()));
}

bool isFollowedWithoutSpace(std::string_view text, std::string_view mark)
{
    for (auto at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + mark.size())) {
        if (!sizeOfStart(text.substr(at + mark.size()), noBreakSpaces))
            return true;
    }
    return false;
}

bool isPrecededWithoutSpace(std::string_view text, std::string_view mark)
{
    for (auto at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + mark.size())) {
        const auto before = text.substr(0, at);
        const auto isAfterMark = before.empty() || before.ends_with('?') || before.ends_with('!');
        const auto isInWord = mark == ":" && isWithinWord(before, text.substr(at + mark.size()));
        if (!isAfterMark && !isInWord && !sizeOfEnd(before, noBreakSpaces))
            return true;
    }
    return false;
}

void addMissingSpaces(std::vector<std::string>& faults, std::string_view translation)
{
    for (const std::string_view mark : { ";", ":", "?", "!", "»" }) {
        if (isPrecededWithoutSpace(translation, mark))
            faults.push_back(fmt::format("has no no-break space before {}", mark));
    }
    if (isFollowedWithoutSpace(translation, "«"))
        faults.emplace_back("has no no-break space after «");
}

void addUnopened(std::vector<std::string>& faults, std::string_view translation)
{
    for (const auto& [opening, closing] : { std::pair("¿", '?'), std::pair("¡", '!') }) {
        if (translation.contains(closing) && !translation.contains(opening))
            faults.push_back(fmt::format("has {} without {}", closing, opening));
    }
}

/// Marks that nobody would write there on purpose.
void addWrongMarks(
    std::vector<std::string>& faults, std::string_view key, std::string_view translation, std::string_view foreignMarks)
{
    for (const auto quote : { '"', '\'' }) {
        if (translation.contains(quote) && !key.contains(quote))
            faults.emplace_back("has a typewriter’s quotation mark or apostrophe");
    }
    if (std::ranges::any_of(directionMarks, [&](std::string_view mark) { return translation.contains(mark); }))
        faults.emplace_back("has a direction mark, which the program sets");
    for (const auto mark : foreignMarks) {
        if (translation.contains(mark))
            faults.push_back(fmt::format("has {} of another script", mark));
    }
}

}

Typography Typography::of(std::string_view language)
{
    const auto name = language.substr(0, std::min(language.find_first_of("-_"), language.size()));
    Typography typography;
    typography.hasSpacesBetweenWords = name != "ja" && name != "zh" && name != "th";
    typography.hasSpacesBeforeMarks = name == "fr";
    typography.opensQuestions = name == "es";
    if (name == "ar" || name == "fa" || name == "ur")
        typography.foreignMarks = ",;?";
    else if (name == "ja" || name == "zh")
        typography.foreignMarks = ",";
    return typography;
}

std::vector<std::string> typographyFaults(
    std::string_view key, std::string_view translation, const Typography& typography)
{
    std::vector<std::string> faults;
    for (auto fault : { lostSpaces(key, translation), lostEnding(key, translation),
             lostNoBreakSpace(key, translation, typography) }) {
        if (fault)
            faults.push_back(*std::move(fault));
    }
    addWrongMarks(faults, key, translation, typography.foreignMarks);
    if (typography.hasSpacesBeforeMarks)
        addMissingSpaces(faults, translation);
    if (typography.opensQuestions)
        addUnopened(faults, translation);
    return faults;
}

}
