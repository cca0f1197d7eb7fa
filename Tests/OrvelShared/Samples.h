#pragma once

#include <gtest/gtest.h>
#include <string>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelShared/WidgetSnapshot.h"

// Short ways to write dates and records in tests.

using State = orvel::WidgetSnapshot::State;

/// A date as ISO 8601 text, which may have a fraction.
inline orvel::Date date(std::string_view text)
{
    const auto date = orvel::dateFromISO8601WithFraction(text);
    if (!date)
        throw std::invalid_argument(std::string(text));
    return *date;
}

inline std::string text(orvel::Date date)
{
    return orvel::iso8601WithFraction(date).value();
}

inline std::vector<std::string> texts(const std::vector<orvel::Date>& dates)
{
    std::vector<std::string> texts;
    for (const auto date : dates)
        texts.push_back(text(date));
    return texts;
}

inline orvel::Calendar calendarIn(std::string_view zone)
{
    const auto found = orvel::TimeZone::named(zone);
    if (!found)
        throw std::invalid_argument(std::string(zone));
    return orvel::Calendar(*found);
}

inline orvel::WidgetSnapshot::Running running(orvel::Date start, std::optional<orvel::Date> end)
{
    return {
        .name = "Morning",
        .names = { "Morning" },
        .look = std::nullopt,
        .start = start,
        .end = end,
        .level = orvel::WidgetSnapshot::Level::firm,
        .listNames = { "Social" },
        .unlock = std::nullopt,
    };
}

/// A snapshot without phases, days, Lists or Blocks.
inline orvel::WidgetSnapshot emptySnapshot(orvel::Date horizon)
{
    return {
        .writtenAt = horizon,
        .isRunning = true,
        .blockCount = 1,
        .phases = {},
        .horizon = horizon,
        .days = {},
        .breathe = { .style = "calm", .minutes = 3 },
        .focusMinutes = 25,
        .lists = {},
        .blocks = {},
    };
}
