#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <set>
#include <string>

#include "OrvelPlatform/Base/Date.h"

namespace orvel {

/// The variable TZ of this process for as long as this lives, then what it was before.
class ScopedZoneSetting {
public:
    explicit ScopedZoneSetting(const char* setting)
    {
        if (const auto* const before = std::getenv("TZ"))
            m_before = before;
        set(setting);
    }
    ScopedZoneSetting(const ScopedZoneSetting&) = delete;
    ScopedZoneSetting& operator=(const ScopedZoneSetting&) = delete;
    ~ScopedZoneSetting() { set(m_before ? m_before->c_str() : nullptr); }

    static void set(const char* setting)
    {
        setting ? ::setenv("TZ", setting, 1) : ::unsetenv("TZ");
        ::tzset();
    }

private:
    std::optional<std::string> m_before;
};

/// Questions to a calendar answered the obvious and slow way: by asking the C library about many instants. It answers
/// for instants from 1973 on, since when clocks everywhere have been whole minutes from UTC. One lives at a time.
class SlowCalendar {
public:
    using Instant = std::chrono::sys_seconds;

    explicit SlowCalendar(const std::string& setting) : m_setting(setting.c_str()) { }

    std::chrono::seconds offset(Instant instant) const { return std::chrono::seconds { broken(instant).tm_gmtoff }; }
    std::string abbreviation(Instant instant) const { return broken(instant).tm_zone; }
    int weekday(Instant instant) const { return broken(instant).tm_wday + 1; }

    std::chrono::local_seconds wallTime(Instant instant) const
    {
        return std::chrono::local_seconds { instant.time_since_epoch() + offset(instant) };
    }

    std::chrono::local_days day(Instant instant) const
    {
        return std::chrono::floor<std::chrono::days>(wallTime(instant));
    }

    /// No day since 1973 has had more than 26 hours.
    Instant startOfDay(Instant instant) const
    {
        const auto today = day(instant);
        auto start = std::chrono::floor<std::chrono::minutes>(instant) - std::chrono::hours { 26 };
        while (day(start) != today)
            start += std::chrono::minutes { 1 };
        return start;
    }

    Instant addingDays(int days, Instant instant) const
    {
        if (days == 0)
            return instant;
        const auto wall = wallTime(instant) + std::chrono::days { days };
        const auto read = readings(wall);
        std::set<Instant> fitting;
        for (const auto reading : read)
            if (wallTime(reading) == wall)
                fitting.insert(reading);
        if (fitting.empty())
            return *read.rbegin(); // by the clock before the jump
        return days < 0 ? *fitting.rbegin() : *fitting.begin();
    }

    /// The instant of a wall time that exists once.
    Instant instant(std::chrono::local_seconds wall) const
    {
        const std::time_t time = wall.time_since_epoch().count();
        std::tm fields {};
        ::gmtime_r(&time, &fields);
        fields.tm_isdst = -1;
        return Instant { std::chrono::seconds { std::mktime(&fields) } };
    }

private:
    std::tm broken(Instant instant) const
    {
        const std::time_t time = instant.time_since_epoch().count();
        std::tm fields {};
        ::localtime_r(&time, &fields);
        return fields;
    }

    /// A wall time read by every clock in use around it.
    std::set<Instant> readings(std::chrono::local_seconds wall) const
    {
        const Instant around { wall.time_since_epoch() };
        std::set<Instant> read;
        for (auto shift = std::chrono::hours { -26 }; shift <= std::chrono::hours { 26 }; ++shift)
            read.insert(around - offset(around + shift));
        return read;
    }

    ScopedZoneSetting m_setting;
};

}
