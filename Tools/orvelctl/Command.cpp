#include "Tools/orvelctl/Command.h"

#include <fmt/format.h>

namespace orvelctl {

void runs(CLI::App* command, Action& action, Action what)
{
    command->callback([&action, what = std::move(what)] { action = what; });
}

void addDateOption(CLI::App* command, std::string_view name, std::optional<orvel::Date>& date, const std::string& what)
{
    const std::string option(name);
    command
        ->add_option_function<std::string>(
            option,
            [&date, option](const std::string& text) {
                date = orvel::dateFromISO8601WithFraction(text);
                if (!date)
                    throw CLI::ValidationError(
                        option, fmt::format("\"{}\" is no date such as 2026-03-02T09:00:00Z", printable(text)));
            },
            what)
        ->type_name("DATE");
}

void addTimeZoneOption(CLI::App* command, std::optional<orvel::TimeZone>& zone)
{
    command
        ->add_option_function<std::string>(
            "--time-zone",
            [&zone](const std::string& text) {
                zone = orvel::TimeZone::named(text);
                if (!zone)
                    throw CLI::ValidationError(
                        "--time-zone", fmt::format("\"{}\" is no zone such as Europe/Berlin", printable(text)));
            },
            "The zone of days and clock times; without it yours")
        ->type_name("ZONE");
}

void addLocaleOption(CLI::App* command, std::optional<orvel::Locale>& locale)
{
    command
        ->add_option_function<std::string>(
            "--locale",
            [&locale](const std::string& text) {
                locale = orvel::Locale::named(text);
                if (!locale)
                    throw CLI::ValidationError(
                        "--locale", fmt::format("\"{}\" is no locale such as de-DE or de_DE.UTF-8", printable(text)));
            },
            "The language of words, times and lists; without it yours")
        ->type_name("LOCALE");
}

orvel::Calendar calendar(const std::optional<orvel::TimeZone>& zone)
{
    return zone ? orvel::Calendar(*zone) : orvel::Calendar::current();
}

}
