#include "OrvelPlatform/Base/TimeZone.h"

#include <absl/time/internal/cctz/include/cctz/zone_info_source.h>
#include <absl/time/internal/cctz/src/time_zone_if.h>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

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

/// A calculator loads what is found under a name. The name that it gets from us is the zone's data itself; other users
/// of the library in this process have their names looked up as ever.
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

using Instant = cctz::time_point<cctz::seconds>;

Instant instant(Date date)
{
    return std::chrono::floor<std::chrono::seconds>(date);
}

Date date(Instant instant)
{
    return instant;
}

cctz::civil_second civilSecond(std::chrono::local_seconds wallTime)
{
    return cctz::civil_second(1970) + wallTime.time_since_epoch().count();
}

TimeZone::Meeting meeting(cctz::time_zone::civil_lookup::civil_kind kind)
{
    switch (kind) {
    case cctz::time_zone::civil_lookup::UNIQUE:
        return TimeZone::Meeting::once;
    case cctz::time_zone::civil_lookup::SKIPPED:
        return TimeZone::Meeting::never;
    case cctz::time_zone::civil_lookup::REPEATED:
        return TimeZone::Meeting::twice;
    }
    return TimeZone::Meeting::once;
}

using Calculator = std::shared_ptr<const cctz::TimeZoneIf>;

/// The calculator of a zone's data, null where that is none. Requests name zones again and again, so that the last few
/// stay. The number is bounded, because anyone on the bus may name new rules; the library's own store keeps every zone
/// for the life of the process, 40 kB each.
Calculator calculatorOf(const std::string& zoneData)
{
    constexpr std::size_t mostKept = 16;
    struct Store {
        std::mutex mutex;
        std::vector<std::pair<std::string, Calculator>> lastUsedFirst;
    };
    // Never destroyed: threads may still ask while a process ends.
    static auto& store = *std::make_unique<Store>().release();

    const std::scoped_lock lock(store.mutex);
    auto& entries = store.lastUsedFirst;
    auto found = std::ranges::find(
        entries, zoneData, [](const auto& entry) -> auto& { return entry.first; });
    if (found == entries.end()) {
        Calculator loaded = cctz::TimeZoneIf::Load(zoneData);
        if (!loaded)
            return nullptr;
        if (entries.size() == mostKept)
            entries.pop_back();
        entries.emplace_back(zoneData, std::move(loaded));
        found = entries.end() - 1;
    }
    std::rotate(entries.begin(), found, found + 1);
    return entries.front().second;
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
    std::string zoneData;
    Calculator calculator;
};

TimeZone::TimeZone(std::shared_ptr<const Rules> rules) : m_rules(std::move(rules)) { }

std::optional<TimeZone> TimeZone::make(std::string_view name, const std::optional<std::string>& zoneData)
{
    auto calculator = zoneData ? calculatorOf(*zoneData) : nullptr;
    if (!calculator)
        return std::nullopt;
    return TimeZone(std::make_shared<const Rules>(std::string(name), *zoneData, std::move(calculator)));
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
    static const TimeZone zone(std::make_shared<const Rules>("UTC", "", cctz::TimeZoneIf::Load("UTC")));
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
    return std::chrono::seconds { m_rules->calculator->BreakTime(instant(date)).offset };
}

WallTime TimeZone::wallTime(Date date) const
{
    return WallTime { date.time_since_epoch() + offset(date) };
}

std::string TimeZone::abbreviation(Date date) const
{
    return m_rules->calculator->BreakTime(instant(date)).abbr;
}

TimeZone::Instants TimeZone::instants(WallTime wallTime) const
{
    const auto second = std::chrono::floor<std::chrono::seconds>(wallTime);
    const auto fraction = wallTime - second;
    const auto found = m_rules->calculator->MakeTime(civilSecond(second));
    const auto before = date(found.pre) + fraction;
    const auto after = date(found.post) + fraction;
    const auto isOnce = found.kind == cctz::time_zone::civil_lookup::UNIQUE;
    return { .meeting = meeting(found.kind),
        .earlier = std::min(before, after),
        .later = std::max(before, after),
        .change = isOnce ? before : date(found.trans) };
}

std::optional<Date> TimeZone::nextChange(Date after) const
{
    const auto& calculator = *m_rules->calculator;
    cctz::time_zone::civil_transition change;
    for (auto from = instant(after); calculator.NextTransition(from, &change);) {
        from = calculator.MakeTime(change.to).trans;
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
        || (left.name() == right.name() && left.m_rules->zoneData == right.m_rules->zoneData);
}

}
