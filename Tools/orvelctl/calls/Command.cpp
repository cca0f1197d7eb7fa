#include "Tools/orvelctl/calls/Command.h"

#include <fmt/format.h>

namespace orvelctl {

void runs(CLI::App* command, Action& action, Action what)
{
    command->callback([&action, what = std::move(what)] { action = what; });
}

namespace {

/// An option whose text `parse` understands; `likeness` says for which text it would.
template <typename Value>
CLI::Option* addParsedOption(CLI::App* command, const std::string& name, std::optional<Value>& value,
    std::optional<Value> (*parse)(std::string_view), std::string_view likeness, const std::string& what)
{
    const auto read = [&value, parse, name, likeness](const std::string& text) {
        value = parse(text);
        if (!value)
            throw CLI::ValidationError(name, fmt::format("\"{}\" is no {}", printable(text), likeness));
    };
    return command->add_option_function<std::string>(name, read, what);
}

}

void addDateOption(CLI::App* command, std::string_view name, std::optional<orvel::Date>& date, const std::string& what)
{
    addParsedOption(
        command, std::string(name), date, orvel::dateFromISO8601WithFraction, "date such as 2026-03-02T09:00:00Z", what)
        ->type_name("DATE");
}

void addTimeZoneOption(CLI::App* command, std::optional<orvel::TimeZone>& zone)
{
    addParsedOption(command, "--time-zone", zone, orvel::TimeZone::named, "zone such as Europe/Berlin",
        "The zone of days and clock times; without it yours")
        ->type_name("ZONE");
}

void addLocaleOption(CLI::App* command, std::optional<orvel::Locale>& locale)
{
    addParsedOption(command, "--locale", locale, orvel::Locale::named, "locale such as de-DE or de_DE.UTF-8",
        "The language of words, times and lists; without it yours")
        ->type_name("LOCALE");
}

void addLanguageOption(CLI::App* command, std::optional<orvel::Locale>& language, const std::string& what)
{
    addParsedOption(command, "--language", language, orvel::Locale::named, "language such as de or pt_BR", what)
        ->type_name("LANGUAGE");
}

CLI::Validator within(double least, double most)
{
    const auto check = [least, most](std::string& text) {
        double value = 0;
        const bool isWithin = CLI::detail::lexical_cast(text, value) && value >= least && value <= most;
        return isWithin ? std::string() : fmt::format("\"{}\" is not between {} and {}", printable(text), least, most);
    };
    return { check, fmt::format("{} to {}", least, most) };
}

orvel::Calendar calendar(const std::optional<orvel::TimeZone>& zone)
{
    return zone ? orvel::Calendar(*zone) : orvel::Calendar::current();
}

}
