#include "OrvelPlatform/Base/Date.h"

#include <gtest/gtest.h>

using namespace orvel;
using namespace std::chrono_literals;

namespace {

Date at(std::int64_t microseconds)
{
    return Date { std::chrono::microseconds { microseconds } };
}

}

TEST(Dates, readOnlyTheExactForm)
{
    struct Case {
        std::string_view text;
        std::optional<std::int64_t> seconds;
    };
    const Case cases[] = {
        { "1970-01-01T00:00:00Z", 0 },
        { "2026-03-02T09:00:00Z", 1772442000 },
        { "2026-03-02T10:00:00+01:00", 1772442000 },
        { "2026-03-01T23:30:00-09:30", 1772442000 },
        { "2024-02-29T00:00:00Z", 1709164800 },
        { "0001-01-01T00:00:00Z", -62135596800 },
        { "9999-12-31T23:59:59Z", 253402300799 },
        { "0001-01-01T00:00:00+00:01", std::nullopt },
        { "9999-12-31T23:59:59-00:01", std::nullopt },
        { "0000-12-31T00:00:00Z", std::nullopt },
        { "2026-02-29T00:00:00Z", std::nullopt },
        { "2026-13-01T00:00:00Z", std::nullopt },
        { "2026-00-01T00:00:00Z", std::nullopt },
        { "2026-03-02T24:00:00Z", std::nullopt },
        { "2026-03-02T09:60:00Z", std::nullopt },
        { "2026-03-02T09:00:60Z", std::nullopt },
        { "2026-03-02T09:00:00.5Z", std::nullopt },
        { "2026-03-02T09:00Z", std::nullopt },
        { "2026-03-02T09:00:00", std::nullopt },
        { "2026-03-02t09:00:00Z", std::nullopt },
        { "2026-03-02T09:00:00z", std::nullopt },
        { "2026-03-02 09:00:00Z", std::nullopt },
        { " 2026-03-02T09:00:00Z", std::nullopt },
        { "2026-03-02T09:00:00Z ", std::nullopt },
        { "2026-03-02T09:00:00+0100", std::nullopt },
        { "2026-03-02T09:00:00+01", std::nullopt },
        { "2026-03-02T09:00:00+24:00", std::nullopt },
        { "2026-03-02T09:00:00+01:60", std::nullopt },
        { "+026-03-02T09:00:00Z", std::nullopt },
        { "", std::nullopt },
    };
    for (const auto& c : cases) {
        const auto expected = c.seconds.transform([](auto seconds) { return at(seconds * 1'000'000); });
        EXPECT_EQ(dateFromISO8601(c.text), expected) << c.text;
    }
}

TEST(Dates, areWrittenFlooredForFilesAndExactForTools)
{
    struct Case {
        std::int64_t microseconds;
        std::string_view file, tool;
    };
    const Case cases[] = {
        { 0, "1970-01-01T00:00:00Z", "1970-01-01T00:00:00Z" },
        { 999'999, "1970-01-01T00:00:00Z", "1970-01-01T00:00:00.999999Z" },
        { -1, "1969-12-31T23:59:59Z", "1969-12-31T23:59:59.999999Z" },
        { 1'500'000, "1970-01-01T00:00:01Z", "1970-01-01T00:00:01.500Z" },
        { -62135596800'000'000, "0001-01-01T00:00:00Z", "0001-01-01T00:00:00Z" },
        { 253402300799'999'999, "9999-12-31T23:59:59Z", "9999-12-31T23:59:59.999999Z" },
    };
    for (const auto& c : cases) {
        EXPECT_EQ(iso8601(at(c.microseconds)), c.file);
        EXPECT_EQ(iso8601WithFraction(at(c.microseconds)), c.tool);
        EXPECT_EQ(dateFromISO8601WithFraction(c.tool), at(c.microseconds)) << c.tool;
    }
    EXPECT_FALSE(iso8601(latestDate + 1us));
    EXPECT_FALSE(iso8601WithFraction(earliestDate - 1us));
    EXPECT_FALSE(dateFromISO8601WithFraction("1970-01-01T00:00:00.1234567Z"));
    EXPECT_FALSE(dateFromISO8601WithFraction("1970-01-01T00:00:00.Z"));
}
