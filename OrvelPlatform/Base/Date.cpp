#include "OrvelPlatform/Base/Date.h"

#include <fmt/format.h>

namespace orvel {

namespace {

using std::chrono::microseconds;

/// Reads a text from its start, a digit or a character at a time; the first mismatch makes all that follows fail.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_rest(text) { }

    int digits(int count)
    {
        auto value = 0;
        for (; count > 0; --count)
            value = 10 * value + digit();
        return value;
    }

    void expect(char character)
    {
        if (!skip(character))
            m_failed = true;
    }

    bool skip(char character)
    {
        if (m_rest.empty() || m_rest.front() != character)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    /// One to six digits after a point, as microseconds.
    microseconds fraction()
    {
        auto value = digit();
        auto count = 1;
        for (; count < 6 && !m_rest.empty() && isDigit(m_rest.front()); ++count)
            value = 10 * value + digit();
        for (; count < 6; ++count)
            value *= 10;
        return microseconds { value };
    }

    bool isDone() const { return !m_failed && m_rest.empty(); }

private:
    static bool isDigit(char character) { return character >= '0' && character <= '9'; }

    int digit()
    {
        if (m_rest.empty() || !isDigit(m_rest.front())) {
            m_failed = true;
            return 0;
        }
        const auto value = m_rest.front() - '0';
        m_rest.remove_prefix(1);
        return value;
    }

    std::string_view m_rest;
    bool m_failed = false;
};

enum class Fraction { refused, allowed };

std::optional<std::chrono::minutes> scanOffset(Scanner& scanner)
{
    using std::chrono::minutes;
    if (scanner.skip('Z'))
        return minutes { 0 };
    const auto isWest = scanner.skip('-');
    if (!isWest)
        scanner.expect('+');
    const auto hours = scanner.digits(2);
    scanner.expect(':');
    const auto rest = scanner.digits(2);
    if (hours > 23 || rest > 59)
        return std::nullopt;
    const auto offset = std::chrono::hours { hours } + minutes { rest };
    return isWest ? -offset : offset;
}

std::optional<Date> scanDate(std::string_view text, Fraction allowance)
{
    using namespace std::chrono;
    Scanner scanner(text);
    const auto y = scanner.digits(4);
    scanner.expect('-');
    const auto m = scanner.digits(2);
    scanner.expect('-');
    const auto d = scanner.digits(2);
    scanner.expect('T');
    const auto hour = scanner.digits(2);
    scanner.expect(':');
    const auto minute = scanner.digits(2);
    scanner.expect(':');
    const auto second = scanner.digits(2);
    const auto fraction = allowance == Fraction::allowed && scanner.skip('.') ? scanner.fraction() : microseconds { 0 };
    const auto offset = scanOffset(scanner);

    const year_month_day day { year { y }, month { static_cast<unsigned>(m) },
        std::chrono::day { static_cast<unsigned>(d) } };
    if (!scanner.isDone() || !offset || !day.ok() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    const Date date = sys_days { day } + hours { hour } + minutes { minute } + seconds { second } + fraction - *offset;
    if (!isWithinYears1To9999(date))
        return std::nullopt;
    return date;
}

std::string wholeSeconds(Date date)
{
    using namespace std::chrono;
    const auto midnight = floor<days>(date);
    const year_month_day day { midnight };
    const hh_mm_ss time { floor<seconds>(date) - midnight };
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}", static_cast<int>(day.year()),
        static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()), time.hours().count(),
        time.minutes().count(), time.seconds().count());
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
    return wholeSeconds(date) + 'Z';
}

std::expected<std::string, Fault> iso8601WithFraction(Date date)
{
    if (!isWithinYears1To9999(date))
        return std::unexpected(outOfRange(date));
    const auto fraction = (date - std::chrono::floor<std::chrono::seconds>(date)).count();
    if (fraction == 0)
        return wholeSeconds(date) + 'Z';
    if (fraction % 1000 == 0)
        return fmt::format("{}.{:03}Z", wholeSeconds(date), fraction / 1000);
    return fmt::format("{}.{:06}Z", wholeSeconds(date), fraction);
}

}
