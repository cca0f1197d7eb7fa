#include "OrvelCopy/Format.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "OrvelCopy/Lookup/Lookup.h"

using namespace orvel;

namespace {

constexpr auto infinity = std::numeric_limits<double>::infinity();
constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();

struct Case {
    double seconds;
    std::string_view text;
};

void expectEach(std::string (*format)(Seconds), const std::vector<Case>& cases)
{
    Copy::inLanguage(Locale::english(), [&] {
        for (const auto& c : cases)
            EXPECT_EQ(format(Seconds { c.seconds }), c.text) << c.seconds;
    });
}

}

TEST(Formats, ofTheTimeLeftRoundUp)
{
    expectEach(Format::remaining,
        { { 59.9, "under a minute" }, { 60, "1 m" }, { 60.001, "2 m" }, { 61, "2 m" }, { -30, "under a minute" },
            { -infinity, "under a minute" }, { 0, "under a minute" }, { 3540, "59 m" }, { 3541, "1 h" },
            { 3600, "1 h" }, { 3600.1, "1 h 1 m" }, { 3660, "1 h 1 m" }, { 7199, "2 h" }, { 360'000, "100 h" },
            { notANumber, "0 m" } });
}

TEST(Formats, ofACountdownRoundUpToSeconds)
{
    expectEach(Format::countdown,
        { { 245, "4:05" }, { 3725, "62:05" }, { 0, "0:00" }, { 59.2, "1:00" }, { -5, "0:00" }, { 0.1, "0:01" },
            { notANumber, "0:00" } });
}

TEST(Formats, ofShortMinutesRoundUp)
{
    expectEach(Format::shortMinutes,
        { { 0.5, "1m" }, { 0, "0m" }, { 60, "1m" }, { 1500, "25m" }, { 6000, "100m" }, { -1, "0m" },
            { notANumber, "0m" } });
}

TEST(Formats, ofScreenTimeRoundHalvesUp)
{
    expectEach(Format::screenTime,
        { { 29, "0 m" }, { 30, "1 m" }, { 89, "1 m" }, { 90, "2 m" }, { 3569, "59 m" }, { 3570, "1 h 0 m" },
            { 3600, "1 h 0 m" }, { 7260, "2 h 1 m" }, { -90, "0 m" }, { notANumber, "0 m" } });
}

TEST(Formats, stopTheProcessBeyond64Bits)
{
    for (auto* format : { Format::remaining, Format::countdown, Format::shortMinutes, Format::screenTime }) {
        EXPECT_DEATH(format(Seconds { infinity }), "64-bit");
        EXPECT_DEATH(format(Seconds { 6e20 }), "64-bit");
    }
    EXPECT_EQ(Format::countdown(Seconds { 9e18 }), "150000000000000000:00");
}

TEST(Formats, ofATimeOfDayAreTheLocales)
{
    using namespace std::chrono_literals;
    constexpr WallTime noon { 12h };
    EXPECT_EQ(Format::time(noon, Locale::named("en_GB").value()), "12:00");
    EXPECT_TRUE(Format::time(noon, Locale::named("en_US").value()).ends_with("PM"));

    const auto british = Locale::named("en_GB").value();
    constexpr Date summerNoon = std::chrono::sys_days { std::chrono::year { 2026 } / 7 / 1 } + 12h;
    EXPECT_EQ(Format::time(summerNoon, british, TimeZone::utc()), "12:00");
    EXPECT_EQ(Format::time(summerNoon, british, TimeZone::named("Europe/Berlin").value()), "14:00");
    EXPECT_EQ(Format::time(summerNoon, british, TimeZone::named("Asia/Kathmandu").value()), "17:45");
}
