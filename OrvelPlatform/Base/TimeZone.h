#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Date.h"

namespace orvel {

/// The rules of one place's clocks, from the system's zone database. A cheap, immutable value; safe from any thread.
///
/// The rules are those of the zone's file at the time it was asked for: when the file is replaced, zones asked for
/// later follow the new one.
class TimeZone {
public:
    static TimeZone utc();

    /// A zone of the system's database, such as "Europe/Berlin" or "UTC". Absent for an unknown name, for one that
    /// leaves the database's folder and for a file that is no zone.
    static std::optional<TimeZone> named(std::string_view name);

    /// The user's zone now: the environment variable TZ in all its forms (a name, a path, a leading colon, a POSIX rule
    /// such as "CET-1CEST,M3.5.0,M10.5.0/3"), else the target of /etc/localtime. Looked up anew at each call, because
    /// it can change while a process lives. What cannot be understood is UTC, as it is to the C library.
    static TimeZone current();

    /// The zone that a value of TZ means; `nullptr` stands for a variable that is not set. A POSIX rule holds from the
    /// year 1900 on, with standard time before. Zones that count leap seconds ("right/…") are not understood.
    static TimeZone forSetting(const char* setting);

    /// The name that the zone was asked for by: a database name where there is one, else the rule or the path.
    const std::string& name() const;

    /// What clocks there show at an instant.
    WallTime wallTime(Date date) const;

    /// Seconds east of UTC at an instant.
    std::chrono::seconds offset(Date date) const;

    /// The short name in use at an instant, such as "CEST" or "-03".
    std::string abbreviation(Date date) const;

    /// How a wall-clock time meets the zone's instants.
    enum class Meeting {
        once,
        never, // clocks jumped over it
        twice, // clocks were put back past it
    };

    /// The instants of a wall-clock time. `once`: all three are that instant. `never`: `earlier` reads it by the clock
    /// after the jump and so shows a wall time before the gap, `later` by the clock before the jump, moved forward by
    /// the gap. `twice`: its two instants. `change` is the instant at which the clocks were set.
    struct Instants {
        Meeting meeting;
        Date earlier;
        Date later;
        Date change;
    };
    Instants instants(WallTime wallTime) const;

    /// The first instant after `date` at which the rules change what clocks show, if there is one up to the
    /// year 9999.
    std::optional<Date> nextChange(Date date) const;

    /// The same name and the same rules: what was worked out for one zone holds for the other. A zone whose file was
    /// replaced is unequal to the one before.
    friend bool operator==(const TimeZone& left, const TimeZone& right);

private:
    struct Rules;
    explicit TimeZone(std::shared_ptr<const Rules> rules);
    static std::optional<TimeZone> make(std::string_view name, const std::optional<std::string>& zoneData);
    static std::optional<TimeZone> atPath(std::string_view path);

    std::shared_ptr<const Rules> m_rules;
};

}
