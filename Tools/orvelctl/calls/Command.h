#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/Locale.h"
#include "Tools/orvelctl/calls/Terminal.h"

namespace orvelctl {

/// The command that the call names, to be run once the whole call has been understood.
using Action = std::function<Exit()>;

/// Makes `command` set `action` when the call names it.
void runs(CLI::App* command, Action& action, Action what);

/// `--now T`, `--at T`: a date in ISO 8601, to the microsecond.
void addDateOption(CLI::App* command, std::string_view name, std::optional<orvel::Date>& date, const std::string& what);

/// `--time-zone Z`: a name of the zone database; without it the user's own zone.
void addTimeZoneOption(CLI::App* command, std::optional<orvel::TimeZone>& zone);

/// `--locale L`: the language of words and the habits of formats; without it the user's own of each.
void addLocaleOption(CLI::App* command, std::optional<orvel::Locale>& locale);

/// `--language L`: a language of words, where another than the user's own is meant.
void addLanguageOption(CLI::App* command, std::optional<orvel::Locale>& language, const std::string& what);

/// A number within bounds; what is no number is none of them either.
CLI::Validator within(double least, double most);

/// The calendar of a zone, or the user's.
orvel::Calendar calendar(const std::optional<orvel::TimeZone>& zone);

}
