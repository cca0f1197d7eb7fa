#include "OrvelPlatform/Base/PosixRule.h"

#include <algorithm>
#include <charconv>

namespace orvel {

namespace {

using std::chrono::seconds;

// Each of these takes what it reads off the front of a text.

bool take(std::string_view& text, char character)
{
    if (!text.starts_with(character))
        return false;
    text.remove_prefix(1);
    return true;
}

std::optional<int> takeNumber(std::string_view& text, int minimum, int maximum)
{
    auto value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc {} || text.starts_with('-') || value < minimum || value > maximum)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// "CEST", or "<+0330>" where there is more than letters.
std::optional<std::string_view> takeName(std::string_view& text)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto isQuotable = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-'; };
    const auto isQuoted = take(text, '<');
    const auto end = isQuoted ? std::ranges::find_if_not(text, isQuotable) : std::ranges::find_if_not(text, isLetter);
    const auto name = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(name.size());
    if (name.size() < 3 || (isQuoted && !take(text, '>')))
        return std::nullopt;
    return name;
}

/// "[±]hh[:mm[:ss]]"
std::optional<seconds> takeTime(std::string_view& text, int maximumHours)
{
    const auto isNegative = take(text, '-');
    if (!isNegative)
        take(text, '+');
    const auto hours = takeNumber(text, 0, maximumHours);
    const auto minutes = hours && take(text, ':') ? takeNumber(text, 0, 59) : 0;
    const auto rest = text.starts_with(':') && minutes && take(text, ':') ? takeNumber(text, 0, 59) : 0;
    if (!hours || !minutes || !rest)
        return std::nullopt;
    const seconds time = std::chrono::hours { *hours } + std::chrono::minutes { *minutes } + seconds { *rest };
    return isNegative ? -time : time;
}

/// "Mm.w.d", "Jn" or "n"
bool takeDay(std::string_view& text)
{
    if (take(text, 'M'))
        return takeNumber(text, 1, 12) && take(text, '.') && takeNumber(text, 1, 5) && take(text, '.')
            && takeNumber(text, 0, 6);
    return take(text, 'J') ? takeNumber(text, 1, 365).has_value() : takeNumber(text, 0, 365).has_value();
}

/// A day and perhaps "/time", which may lie in a day up to a week away.
bool takeDate(std::string_view& text)
{
    return take(text, ',') && takeDay(text) && (!take(text, '/') || takeTime(text, 167));
}

bool takeSummerTime(std::string_view& text)
{
    return takeName(text) && (text.empty() || text.starts_with(',') || takeTime(text, 24));
}

}

std::optional<PosixRule> posixRule(std::string_view text)
{
    auto rest = text;
    const auto name = takeName(rest);
    const auto time = name ? takeTime(rest, 24) : std::nullopt;
    if (!time)
        return std::nullopt;
    PosixRule rule { std::string(*name), -*time, std::string(text) };
    if (rest.empty())
        return rule;
    if (!takeSummerTime(rest))
        return std::nullopt;
    for (const std::string_view usual : { ",M3.2.0", ",M11.1.0" }) {
        if (rest.empty())
            rule.text += usual;
        else if (!takeDate(rest))
            return std::nullopt;
    }
    return rest.empty() ? std::optional(std::move(rule)) : std::nullopt;
}

}
