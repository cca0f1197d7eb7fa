#include "OrvelPlatform/Base/TimeZone.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "OrvelPlatform/Base/File.h"
#include "SlowCalendar.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

namespace fs = std::filesystem;

Date at(std::string_view text)
{
    return dateFromISO8601WithFraction(text).value();
}

WallTime wall(std::string_view text)
{
    return WallTime { at(std::string(text) + 'Z').time_since_epoch() };
}

std::string databaseFile(std::string_view name)
{
    return readFile(fs::path("/usr/share/zoneinfo") / name, 1 << 20).value();
}

class TimeZones : public testing::Test {
protected:
    TimeZones() { fs::create_directories(folder); }
    ~TimeZones() override { fs::remove_all(folder); }

    TimeZone zoneOf(std::string_view bytes) const
    {
        std::ofstream(file, std::ios::binary) << bytes;
        return TimeZone::forSetting(file.c_str());
    }

    const fs::path folder = fs::path(testing::TempDir()) / ("zones" + std::to_string(::getpid()));
    const fs::path file = folder / "zone";
};

}

TEST_F(TimeZones, followEveryFormOfTheSetting)
{
    struct Case {
        std::string_view setting, name;
        std::chrono::seconds january, july;
        std::string_view julyName;
    };
    const Case cases[] = {
        { "Europe/Berlin", "Europe/Berlin", 1h, 2h, "CEST" },
        { ":Europe/Berlin", "Europe/Berlin", 1h, 2h, "CEST" },
        { "posix/Europe/Berlin", "posix/Europe/Berlin", 1h, 2h, "CEST" },
        { "/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin", 1h, 2h, "CEST" },
        { ":/usr/share/zoneinfo/Asia/Kathmandu", "Asia/Kathmandu", 5h + 45min, 5h + 45min, "+0545" },
        { "CET-1CEST,M3.5.0,M10.5.0/3", "CET-1CEST,M3.5.0,M10.5.0/3", 1h, 2h, "CEST" },
        { ":CET-1CEST,M3.5.0,M10.5.0/3", "CET-1CEST,M3.5.0,M10.5.0/3", 1h, 2h, "CEST" },
        { "<+0330>-3:30", "<+0330>-3:30", 3h + 30min, 3h + 30min, "+0330" },
        { "XXX-02:30:15", "XXX-02:30:15", 2h + 30min + 15s, 2h + 30min + 15s, "XXX" },
        { "XST5XDT", "XST5XDT", -5h, -4h, "XDT" },
        { "XST+5XDT+3", "XST+5XDT+3", -5h, -3h, "XDT" },
        { "AAA4BBB,J300,J60/-3", "AAA4BBB,J300,J60/-3", -3h, -4h, "AAA" },
        { "XST5XDT,M4.1.0", "XST5XDT,M4.1.0", -5h, -4h, "XDT" },
        { "UTC", "UTC", 0h, 0h, "UTC" },
        { "", "UTC", 0h, 0h, "UTC" },
        { ":", "UTC", 0h, 0h, "UTC" },
        { "No/Such", "UTC", 0h, 0h, "UTC" },
        { "../zoneinfo/Europe/Berlin", "UTC", 0h, 0h, "UTC" },
        { "/no/such", "UTC", 0h, 0h, "UTC" },
        { "CET", "CET", 1h, 2h, "CEST" },
        { "A-1", "UTC", 0h, 0h, "UTC" },
        { "AAA", "UTC", 0h, 0h, "UTC" },
        { "AAA-25", "UTC", 0h, 0h, "UTC" },
        { "<AAA-1", "UTC", 0h, 0h, "UTC" },
        { "AAA-1:60", "UTC", 0h, 0h, "UTC" },
        { "AAA-1\n", "UTC", 0h, 0h, "UTC" },
        { "AAA-1BBB,M13.1.0,M11.1.0", "UTC", 0h, 0h, "UTC" },
        { "AAA-1BBB,M3.1.0,M11.1.0,M12.1.0", "UTC", 0h, 0h, "UTC" },
    };
    for (const auto& c : cases) {
        const auto zone = TimeZone::forSetting(std::string(c.setting).c_str());
        EXPECT_EQ(zone.name(), c.name) << c.setting;
        EXPECT_EQ(zone.offset(at("2026-01-15T12:00:00Z")), c.january) << c.setting;
        EXPECT_EQ(zone.offset(at("2026-07-15T12:00:00Z")), c.july) << c.setting;
        EXPECT_EQ(zone.abbreviation(at("2026-07-15T12:00:00Z")), c.julyName) << c.setting;
    }
    EXPECT_EQ(TimeZone::forSetting(std::string(1 << 20, 'A').append("-1").c_str()), TimeZone::utc());
}

TEST_F(TimeZones, areLookedUpAnewWhenTheUserMoves)
{
    const ScopedZoneSetting setting("Asia/Kathmandu");
    EXPECT_EQ(TimeZone::current(), TimeZone::named("Asia/Kathmandu"));
    ScopedZoneSetting::set("Asia/Kolkata");
    EXPECT_EQ(TimeZone::current(), TimeZone::named("Asia/Kolkata"));
    ScopedZoneSetting::set(nullptr);
    EXPECT_EQ(TimeZone::current(), TimeZone::forSetting("/etc/localtime"));
}

TEST_F(TimeZones, areNamedByTheDatabaseOnly)
{
    EXPECT_EQ(TimeZone::named("America/Argentina/Buenos_Aires")->offset(at("2026-01-15T12:00:00Z")), -3h);
    EXPECT_EQ(TimeZone::named("Etc/GMT+5")->offset(at("2026-01-15T12:00:00Z")), -5h);
    const std::string tooLong(300, 'A');
    for (const std::string_view name : { "", "/usr/share/zoneinfo/Europe/Berlin", "../zoneinfo/Europe/Berlin", "Europe",
             "Europe/../Europe/Berlin", "Europe/Berlin\n", "CET-1CEST", "zone.tab", "Nowhere", tooLong.c_str() })
        EXPECT_FALSE(TimeZone::named(name)) << name;
}

TEST_F(TimeZones, areFoundInTheFolderThatTheUserNames)
{
    zoneOf(databaseFile("Asia/Kathmandu"));
    ::setenv("TZDIR", folder.c_str(), 1);
    const auto zone = TimeZone::named("zone");
    const auto unknown = TimeZone::named("Asia/Kathmandu");
    ::unsetenv("TZDIR");
    EXPECT_EQ(zone.value().offset(Date {}), 5h + 30min);
    EXPECT_FALSE(unknown);
}

TEST_F(TimeZones, areUTCForFilesThatAreNoZones)
{
    const auto berlin = databaseFile("Europe/Berlin");
    ASSERT_EQ(zoneOf(berlin).offset(at("2026-01-15T12:00:00Z")), 1h);
    for (std::size_t size = 0; size < berlin.size(); size += 7)
        ASSERT_EQ(zoneOf(berlin.substr(0, size)), TimeZone::utc()) << "the first " << size << " bytes";
    for (std::size_t count = 0; count < 6; ++count) {
        auto giant = berlin;
        giant.replace(20 + 4 * count, 4, "\x7f\xff\xff\xff");
        EXPECT_EQ(zoneOf(giant), TimeZone::utc()) << "count " << count;
    }
    EXPECT_EQ(zoneOf("TZif"), TimeZone::utc());
    const auto withoutRule = berlin.substr(0, berlin.rfind('\n', berlin.size() - 2) + 1);
    EXPECT_NE(zoneOf(withoutRule + "CET-1CEST,M3.5.0,M10.5.0/4\n"), TimeZone::utc());
    for (const std::string_view rule : { "CET-1CEST\n", "CET-1CEST,M3.5.0\n", "CET-1CEST,M3.5.0,M10.5\n",
             "CET-1CEST,M3.5.0,M10.5/3\n", "CET-1<,,>\n", "CET-1CEST,M3.5.0,M10.5.0/\n", "CET-1CEST,M0.5.0,M10.5.0\n",
             "CET-1CEST,M3.5.0,M10.5.7\n", "CET-1CEST,J0,J300\n", "CET-1CEST,M3.5.0,M10.5.0/168\n" })
        EXPECT_EQ(zoneOf(withoutRule + std::string(rule)), TimeZone::utc()) << rule;
    EXPECT_EQ(zoneOf(berlin + std::string(1 << 20, '\n')), TimeZone::utc());
    EXPECT_EQ(TimeZone::forSetting(folder.c_str()), TimeZone::utc());
    EXPECT_EQ(TimeZone::forSetting("/dev/zero"), TimeZone::utc());
    const auto fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(TimeZone::forSetting(fifo.c_str()), TimeZone::utc());
}

TEST_F(TimeZones, surviveDamagedFiles)
{
    // No expectation but the sanitizers': whatever a damaged file says, asking it must be harmless.
    std::mt19937 random(7);
    const auto stJohns = databaseFile("America/St_Johns");
    for (auto run = 0; run < 300; ++run) {
        auto damaged = stJohns;
        for (auto count = 1 + random() % 8; count > 0; --count)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        const auto zone = zoneOf(damaged);
        for (const auto date : { earliestDate, Date {}, at("2026-03-29T01:00:00Z"), latestDate }) {
            zone.instants(zone.wallTime(date));
            zone.nextChange(date);
        }
    }
}

TEST_F(TimeZones, followAReplacedFile)
{
    const auto winter = at("2026-01-15T12:00:00Z");
    const auto before = zoneOf(databaseFile("Europe/Berlin"));
    const auto written = fs::last_write_time(file);
    EXPECT_EQ(before, TimeZone::forSetting(file.c_str()));

    const auto after = zoneOf(databaseFile("America/New_York"));
    fs::last_write_time(file, written);
    EXPECT_EQ(after.offset(winter), -5h);
    EXPECT_EQ(before.offset(winter), 1h);
    EXPECT_NE(before, after);
    EXPECT_EQ(zoneOf("damaged"), TimeZone::utc());
    EXPECT_EQ(zoneOf(databaseFile("Europe/Berlin")), before);
}

TEST_F(TimeZones, meetWallTimesOnceNeverOrTwice)
{
    using enum TimeZone::Meeting;
    struct Case {
        std::string_view zone, wall;
        TimeZone::Meeting meeting;
        std::string_view earlier, later, change;
    };
    const Case cases[] = {
        { "Europe/Berlin", "2026-03-29T02:30:00.25", never, "2026-03-29T00:30:00.25Z", "2026-03-29T01:30:00.25Z",
            "2026-03-29T01:00:00Z" },
        { "Europe/Berlin", "2026-10-25T02:59:59.999999", twice, "2026-10-25T00:59:59.999999Z",
            "2026-10-25T01:59:59.999999Z", "2026-10-25T01:00:00Z" },
        { "Europe/Berlin", "2026-10-25T03:00:00", once, "2026-10-25T02:00:00Z", "2026-10-25T02:00:00Z",
            "2026-10-25T02:00:00Z" },
        { "Australia/Lord_Howe", "2026-10-04T02:15:00", never, "2026-10-03T15:15:00Z", "2026-10-03T15:45:00Z",
            "2026-10-03T15:30:00Z" },
        { "Pacific/Apia", "2011-12-30T12:00:00", never, "2011-12-29T22:00:00Z", "2011-12-30T22:00:00Z",
            "2011-12-30T10:00:00Z" },
        { "Asia/Kathmandu", "1969-12-31T23:59:59.5", once, "1969-12-31T18:29:59.5Z", "1969-12-31T18:29:59.5Z",
            "1969-12-31T18:29:59.5Z" },
    };
    for (const auto& c : cases) {
        const auto zone = TimeZone::named(c.zone).value();
        const auto found = zone.instants(wall(c.wall));
        EXPECT_EQ(found.meeting, c.meeting) << c.zone << c.wall;
        EXPECT_EQ(iso8601WithFraction(found.earlier), iso8601WithFraction(at(c.earlier))) << c.zone << c.wall;
        EXPECT_EQ(iso8601WithFraction(found.later), iso8601WithFraction(at(c.later))) << c.zone << c.wall;
        EXPECT_EQ(iso8601WithFraction(found.change), iso8601WithFraction(at(c.change))) << c.zone << c.wall;
    }
}

TEST_F(TimeZones, tellWhenClocksChangeNext)
{
    struct Case {
        std::string_view zone, date, change;
    };
    const Case cases[] = {
        { "Europe/Berlin", "2026-01-01T00:00:00Z", "2026-03-29T01:00:00Z" },
        { "Europe/Berlin", "2026-03-29T00:59:59.999999Z", "2026-03-29T01:00:00Z" },
        { "Europe/Berlin", "2026-03-29T01:00:00Z", "2026-10-25T01:00:00Z" },
        { "Europe/Berlin", "2437-12-01T00:00:00Z", "2438-03-28T01:00:00Z" },
        { "Europe/Berlin", "9990-01-01T00:00:00Z", "9990-03-25T01:00:00Z" },
        { "Asia/Kathmandu", "2026-01-01T00:00:00Z", "" },
        { "Asia/Kathmandu", "2350-01-01T00:00:00Z", "" },
        { "Asia/Kathmandu", "9990-01-01T00:00:00Z", "" },
        { "Asia/Kathmandu", "1980-01-01T00:00:00Z", "1985-12-31T18:30:00Z" },
        { "UTC", "2026-01-01T00:00:00Z", "" },
    };
    for (const auto& c : cases) {
        const auto change = TimeZone::named(c.zone).value().nextChange(at(c.date));
        EXPECT_EQ(change ? iso8601(*change).value() : "", c.change) << c.zone << c.date;
    }
}

TEST_F(TimeZones, outliveTheirPlaceAmongTheLastOnesAskedFor)
{
    const auto berlin = TimeZone::named("Europe/Berlin").value();
    for (auto hours = -12; hours <= 12; ++hours) {
        for (const auto* suffix : { "", ":30" })
            EXPECT_EQ(TimeZone::forSetting(("XXX" + std::to_string(hours) + suffix).c_str()).abbreviation({}), "XXX");
    }
    EXPECT_EQ(berlin.abbreviation(at("2026-07-01T00:00:00Z")), "CEST");
    EXPECT_EQ(berlin, TimeZone::named("Europe/Berlin"));
}
