#include "OrvelPlatform/Base/TimeZone.h"

#include <absl/time/internal/cctz/include/cctz/zone_info_source.h>
#include <absl/time/time.h>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <utility>

#include "OrvelPlatform/Base/ZoneData.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;
namespace cctz = absl::time_internal::cctz;

/// Zone data in memory, for the calculator to read as if it were a file.
class ZoneDataSource final : public cctz::ZoneInfoSource {
public:
    explicit ZoneDataSource(std::string bytes) : m_bytes(std::move(bytes)) { }

    std::size_t Read(void* destination, std::size_t size) override
    {
        const auto count = std::min(size, m_bytes.size() - m_position);
        std::memcpy(destination, m_bytes.data() + m_position, count);
        m_position += count;
        return count;
    }

    int Skip(std::size_t count) override
    {
        if (count > m_bytes.size() - m_position)
            return -1;
        m_position += count;
        return 0;
    }

private:
    std::string m_bytes;
    std::size_t m_position = 0;
};

using FindSource = std::function<std::unique_ptr<cctz::ZoneInfoSource>(const std::string&)>;

/// The calculator keeps a zone, and also a failure, under its name for life. So the name that it gets from us is the
/// zone's data itself: other data is another zone, and one zone with two names is loaded once. Other users of the
/// calculator in this process have their names looked up as ever.
std::unique_ptr<cctz::ZoneInfoSource> sourceForName(const std::string& name, const FindSource& findSource)
{
    if (!name.starts_with(zoneDataMark))
        return findSource(name);
    return std::make_unique<ZoneDataSource>(name);
}

}

}

namespace absl::time_internal::cctz_extension {

ZoneInfoSourceFactory zone_info_source_factory = orvel::sourceForName;

}

namespace orvel {

namespace {

constexpr std::size_t maximumNameLength = 255;

absl::Time instant(Date date)
{
    return absl::FromUnixMicros(date.time_since_epoch().count());
}

Date date(absl::Time instant)
{
    return Date { std::chrono::seconds { absl::ToUnixSeconds(instant) } };
}

absl::CivilSecond civilSecond(std::chrono::local_seconds wallTime)
{
    return absl::CivilSecond(1970) + wallTime.time_since_epoch().count();
}

TimeZone::Meeting meeting(absl::TimeZone::TimeInfo::CivilKind kind)
{
    switch (kind) {
    case absl::TimeZone::TimeInfo::UNIQUE:
        return TimeZone::Meeting::once;
    case absl::TimeZone::TimeInfo::SKIPPED:
        return TimeZone::Meeting::never;
    case absl::TimeZone::TimeInfo::REPEATED:
        return TimeZone::Meeting::twice;
    }
    return TimeZone::Meeting::once;
}

fs::path databaseFolder()
{
    const auto* const folder = std::getenv("TZDIR");
    return folder && *folder ? folder : "/usr/share/zoneinfo";
}

bool isDatabaseName(std::string_view name)
{
    const auto isAllowed = [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
            || (character >= '0' && character <= '9') || std::string_view("_-+/.").contains(character);
    };
    return !name.empty() && name.size() <= maximumNameLength && !name.starts_with('/')
        && std::ranges::all_of(name, isAllowed)
        && std::ranges::none_of(fs::path(name), [](const fs::path& part) { return part == ".."; });
}

/// Where a path without links leads into a zone database, the name there; else the path.
std::string nameOfFile(const fs::path& path)
{
    constexpr std::string_view folder = "/zoneinfo/";
    const auto text = path.string();
    const auto found = text.rfind(folder);
    return found == std::string::npos ? text : text.substr(found + folder.size());
}

}

struct TimeZone::Rules {
    std::string name;
    absl::TimeZone calculator;
};

TimeZone::TimeZone(std::shared_ptr<const Rules> rules) : m_rules(std::move(rules)) { }

std::optional<TimeZone> TimeZone::make(std::string_view name, const std::optional<std::string>& zoneData)
{
    absl::TimeZone calculator;
    if (!zoneData || !absl::LoadTimeZone(*zoneData, &calculator))
        return std::nullopt;
    return TimeZone(std::make_shared<const Rules>(std::string(name), calculator));
}

std::optional<TimeZone> TimeZone::atPath(std::string_view path)
{
    std::error_code error;
    const auto file = fs::canonical(path, error);
    if (error)
        return std::nullopt;
    return make(nameOfFile(file), zoneDataFromFile(file));
}

TimeZone TimeZone::utc()
{
    static const TimeZone zone(std::make_shared<const Rules>("UTC", absl::UTCTimeZone()));
    return zone;
}

std::optional<TimeZone> TimeZone::named(std::string_view name)
{
    if (name == "UTC")
        return utc(); // also where no database is installed
    if (!isDatabaseName(name))
        return std::nullopt;
    return make(name, zoneDataFromFile(databaseFolder() / name));
}

TimeZone TimeZone::current()
{
    return forSetting(std::getenv("TZ"));
}

TimeZone TimeZone::forSetting(const char* setting)
{
    if (!setting)
        return atPath("/etc/localtime").value_or(utc());
    std::string_view value(setting);
    if (value.starts_with(':'))
        value.remove_prefix(1);
    if (value.starts_with('/'))
        return atPath(value).value_or(utc());
    if (auto zone = named(value))
        return *std::move(zone);
    const auto rule = value.size() > maximumNameLength ? std::nullopt : posixRule(value);
    return make(value, rule.transform(zoneDataFromRule)).value_or(utc());
}

const std::string& TimeZone::name() const
{
    return m_rules->name;
}

std::chrono::seconds TimeZone::offset(Date date) const
{
    return std::chrono::seconds { m_rules->calculator.At(instant(date)).offset };
}

WallTime TimeZone::wallTime(Date date) const
{
    return WallTime { date.time_since_epoch() + offset(date) };
}

std::string TimeZone::abbreviation(Date date) const
{
    return m_rules->calculator.At(instant(date)).zone_abbr;
}

TimeZone::Instants TimeZone::instants(WallTime wallTime) const
{
    const auto second = std::chrono::floor<std::chrono::seconds>(wallTime);
    const auto fraction = wallTime - second;
    const auto found = m_rules->calculator.At(civilSecond(second));
    const auto before = date(found.pre) + fraction;
    const auto after = date(found.post) + fraction;
    const auto isOnce = found.kind == absl::TimeZone::TimeInfo::UNIQUE;
    return { .meeting = meeting(found.kind),
        .earlier = std::min(before, after),
        .later = std::max(before, after),
        .change = isOnce ? before : date(found.trans) };
}

std::optional<Date> TimeZone::nextChange(Date after) const
{
    const auto& calculator = m_rules->calculator;
    absl::TimeZone::CivilTransition change;
    for (auto from = instant(after); calculator.NextTransition(from, &change);) {
        from = calculator.At(change.to).trans;
        if (from > instant(latestDate))
            return std::nullopt;
        if (change.from != change.to) // else only the name changes
            return date(from);
    }

    // The calculator lists the changes of 400 years after the last one in the file. Then dates and weekdays repeat, and
    // so do the changes, if the zone goes on having any.
    constexpr std::chrono::seconds cycle = std::chrono::days { 146'097 };
    constexpr Date earliestEnd = std::chrono::sys_days { std::chrono::year { 2300 } / 1 / 1 };
    const auto inOneCycle = after < earliestEnd ? std::nullopt : nextChange(after - cycle);
    if (!inOneCycle || offset(*inOneCycle + cycle) == offset(*inOneCycle + cycle - std::chrono::seconds { 1 }))
        return std::nullopt;
    return *inOneCycle + cycle;
}

bool operator==(const TimeZone& left, const TimeZone& right)
{
    return left.m_rules == right.m_rules
        || (left.name() == right.name() && left.m_rules->calculator == right.m_rules->calculator);
}

}
