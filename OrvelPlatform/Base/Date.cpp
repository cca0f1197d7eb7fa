#include "OrvelPlatform/Base/Date.h"

#include <fmt/format.h>
#include <utility>

namespace orvel {

namespace {

using std::chrono::microseconds;

constexpr char wholeSecondsForm[] = "0000-00-00T00:00:00";
constexpr auto wholeSecondsSize = sizeof(wholeSecondsForm) - 1;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Whether a text has a digit wherever the form has a zero, and elsewhere the form's own characters. All are compared
/// at once, without a branch for each: dates are a good part of what is read.
template <std::size_t size>
bool hasForm(std::string_view text, const char (&form)[size])
{
    const auto isLike = [](char character, char model) {
        return static_cast<unsigned char>(character - model) <= (model == '0' ? 9 : 0);
    };
    const auto areAllLike = [&]<std::size_t... index>(std::index_sequence<index...>)
    {
        return (isLike(text[index], form[index]) & ...);
    };
    return text.size() == size - 1 && areAllLike(std::make_index_sequence<size - 1>());
}

/// The number that the digits of a place spell.
int number(std::string_view text, std::size_t start, std::size_t end)
{
    auto value = 0;
    for (; start < end; ++start)
        value = 10 * value + (text[start] - '0');
    return value;
}

enum class Fraction { refused, allowed };

/// Takes a point and one to six digits off the front of a text, if they are there.
microseconds takeFraction(std::string_view& text)
{
    std::size_t end = 1;
    while (end < text.size() && end < 7 && isDigit(text[end]))
        ++end;
    if (!text.starts_with('.') || end == 1)
        return microseconds { 0 };
    auto value = number(text, 1, end);
    for (auto count = end; count < 7; ++count)
        value *= 10;
    text.remove_prefix(end);
    return microseconds { value };
}

std::optional<std::chrono::minutes> offset(std::string_view text)
{
    using namespace std::chrono;
    if (text == "Z")
        return minutes { 0 };
    const auto isEast = hasForm(text, "+00:00");
    if (!isEast && !hasForm(text, "-00:00"))
        return std::nullopt;
    const hours whole { number(text, 1, 3) };
    const minutes rest { number(text, 4, 6) };
    if (whole > hours { 23 } || rest > minutes { 59 })
        return std::nullopt;
    return isEast ? whole + rest : -(whole + rest);
}

std::optional<Date> scanDate(std::string_view text, Fraction allowance)
{
    using namespace std::chrono;
    if (!hasForm(text.substr(0, wholeSecondsSize), wholeSecondsForm))
        return std::nullopt;
    const auto day = year { number(text, 0, 4) } / number(text, 5, 7) / number(text, 8, 10);
    const hours hour { number(text, 11, 13) };
    const minutes minute { number(text, 14, 16) };
    const seconds second { number(text, 17, 19) };
    auto rest = text.substr(wholeSecondsSize);
    const auto fraction = allowance == Fraction::allowed ? takeFraction(rest) : microseconds { 0 };
    const auto east = offset(rest);
    if (!east || !day.ok() || hour > hours { 23 } || minute > minutes { 59 } || second > seconds { 59 })
        return std::nullopt;
    const Date date = sys_days { day } + hour + minute + second + fraction - *east;
    return isWithinYears1To9999(date) ? std::optional(date) : std::nullopt;
}

/// Writes a number over the zeros that stand before `end`.
void write(std::string& text, std::size_t end, std::int64_t number)
{
    for (; number > 0; number /= 10)
        text[--end] = static_cast<char>('0' + number % 10);
}

std::string wholeSeconds(Date date)
{
    using namespace std::chrono;
    const auto midnight = floor<days>(date);
    const year_month_day day { midnight };
    const hh_mm_ss time { floor<seconds>(date) - midnight };
    std::string text;
    text.reserve(wholeSecondsSize + 1);
    text = wholeSecondsForm;
    write(text, 4, static_cast<int>(day.year()));
    write(text, 7, static_cast<unsigned>(day.month()));
    write(text, 10, static_cast<unsigned>(day.day()));
    write(text, 13, time.hours().count());
    write(text, 16, time.minutes().count());
    write(text, 19, time.seconds().count());
    return text += 'Z';
}

Fault outOfRange(Date date)
{
    return { .where = "",
        .why = fmt::format("a date {} s from 1970 lies outside the years 1 to 9999",
            date.time_since_epoch() / std::chrono::seconds { 1 }) };
}

}

Date now()
{
    return std::chrono::floor<microseconds>(std::chrono::system_clock::now());
}

std::optional<Date> dateFromISO8601(std::string_view text)
{
    return scanDate(text, Fraction::refused);
}

std::optional<Date> dateFromISO8601WithFraction(std::string_view text)
{
    return scanDate(text, Fraction::allowed);
}

std::expected<std::string, Fault> iso8601(Date date)
{
    if (!isWithinYears1To9999(date))
        return std::unexpected(outOfRange(date));
    return wholeSeconds(date);
}

std::expected<std::string, Fault> iso8601WithFraction(Date date)
{
    if (!isWithinYears1To9999(date))
        return std::unexpected(outOfRange(date));
    auto text = wholeSeconds(date);
    const auto fraction = (date - std::chrono::floor<std::chrono::seconds>(date)).count();
    if (fraction == 0)
        return text;
    const auto isMilliseconds = fraction % 1000 == 0;
    text.replace(text.size() - 1, 1, isMilliseconds ? ".000Z" : ".000000Z");
    write(text, text.size() - 1, isMilliseconds ? fraction / 1000 : fraction);
    return text;
}

}
