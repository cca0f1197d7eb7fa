#include <gmock/gmock.h>
#include <limits>

#include "OrvelPlatform/Base/JsonDecoding.h"
#include "OrvelPlatform/Base/JsonEncoding.h"

using namespace orvel;
using namespace std::string_literals;
using testing::HasSubstr;

namespace {

enum class Tone { low, high };

struct Record {
    std::optional<std::int64_t> count;
    bool isOn;
    std::vector<std::string> names;
    std::optional<Tone> tone;
    bool operator==(const Record&) const = default;
};

Record record(std::string name)
{
    return { .count = std::nullopt, .isOn = true, .names = { std::move(name) }, .tone = std::nullopt };
}

template <typename Value>
std::string faultOf(std::string_view json)
{
    const auto value = decodeJson<Value>(json);
    return value ? "none" : value.error().text();
}

}

template <>
inline constexpr std::array<std::string_view, 2> orvel::rawValues<Tone> { "low", "high" };

template <>
struct orvel::JsonForm<Tone> {
    static constexpr std::string_view noun = "tone";
};

template <>
struct orvel::JsonForm<Record> {
    static constexpr auto fields = std::tuple {
        JsonField { "count", &Record::count },
        JsonField { "isOn", &Record::isOn },
        JsonField { "names", &Record::names },
        JsonField { "tone", &Record::tone },
    };
};

TEST(JsonDecoding, takesWholeNumbersOnly)
{
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const std::pair<std::string_view, std::optional<std::int64_t>> cases[] = {
        { "3", 3 },
        { "-0", 0 },
        { "3.0", 3 },
        { "1e2", 100 },
        { "-0.0", 0 },
        { "9007199254740992.0", 9007199254740992 },
        { "9223372036854775807", most },
        { "-9223372036854775808", least },
        { "9007199254740994.0", std::nullopt },
        { "9223372036854775808", std::nullopt },
        { "-9223372036854775809", std::nullopt },
        { "3.5", std::nullopt },
        { "1e400", std::nullopt },
        { "01", std::nullopt },
        { "+1", std::nullopt },
        { "NaN", std::nullopt },
        { "true", std::nullopt },
        { "\"1\"", std::nullopt },
        { "null", std::nullopt },
    };
    for (const auto& [json, expected] : cases) {
        const auto value = decodeJson<std::int64_t>(json);
        EXPECT_EQ(value ? std::optional(*value) : std::nullopt, expected) << json;
    }
}

TEST(JsonDecoding, takesTextAsItStandsAndTurnsFalseTextAway)
{
    const std::pair<std::string, std::optional<std::string>> cases[] = {
        { R"("\u0000")", "\0"s },
        { R"("\ud83c\udf19\/\"")", "🌙/\"" },
        { "\"\u2028\x7F\"", "\u2028\x7F" },
        { "\xEF\xBB\xBF\"a\"", "a" },
        { " \t\r\n\"a\" \t\r\n", "a" },
        { "\xEF\xBB\xBF\xEF\xBB\xBF\"a\"", std::nullopt },
        { R"("\ud83c")", std::nullopt },
        { R"("\udf19")", std::nullopt },
        { R"("\udf19\ud83c")", std::nullopt },
        { R"("\x41")", std::nullopt },
        { "\"\xC3\x28\"", std::nullopt },
        { "\"\xED\xA0\x80\"", std::nullopt },
        { "\"a\nb\"", std::nullopt },
        { "\"a\" b", std::nullopt },
        { "\"a", std::nullopt },
        { "'a'", std::nullopt },
        { "", std::nullopt },
        { "\"a\"\0"s, std::nullopt },
        { "\"\0a\0\""s, std::nullopt },
    };
    for (const auto& [json, expected] : cases) {
        const auto value = decodeJson<std::string>(json);
        EXPECT_EQ(value ? std::optional(*value) : std::nullopt, expected) << json;
    }
}

TEST(JsonDecoding, readsRecordsByTheirForm)
{
    const std::string_view good[] = {
        R"({"isOn":true,"names":["a"]})",
        R"({"tone":null,"names":["a"],"isOn":true,"count":null})",
        R"({"extra":{"isOn":1},"isOn":true,"names":["a"],"isOn":false,"names":7})",
    };
    for (const auto json : good)
        EXPECT_EQ(decodeJson<Record>(json), record("a")) << json;
    EXPECT_EQ(decodeJson<Record>(R"({"names":[],"isOn":false,"tone":"high","count":2})"),
        (Record { .count = 2, .isOn = false, .names = {}, .tone = Tone::high }));
}

TEST(JsonDecoding, saysWhereAndWhy)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        { "{}", "[0].isOn: is required and missing" },
        { R"({"isOn":null,"names":[]})", "[0].isOn: expected a boolean, found null" },
        { R"({"isOn":1,"names":[]})", "[0].isOn: expected a boolean, found a number" },
        { R"({"isOn":true,"names":{}})", "[0].names: expected an array, found an object" },
        { R"({"isOn":true,"names":["a",null]})", "[0].names[1]: expected text, found null" },
        { R"({"isOn":true,"names":[],"tone":"High"})", "[0].tone: unknown tone \"High\"" },
        { R"({"isOn":true,"names":[],"count":"1"})", "[0].count: expected a whole 64-bit number, found text" },
        { "[]", "[0]: expected an object, found an array" },
    };
    for (const auto& [json, fault] : cases)
        EXPECT_EQ(faultOf<std::vector<Record>>("[" + std::string(json) + "]"), fault);
    for (const auto json : { R"([{"isOn":true,"names":[],}])", R"([{"isOn":true "names":[]}])", "[", "[1e999]" })
        EXPECT_THAT(faultOf<std::vector<Record>>(json), HasSubstr("malformed JSON")) << json;
    EXPECT_THAT(faultOf<Date>('"' + std::string(10'000, 'x') + '"'), testing::SizeIs(testing::Lt(200)));
}

TEST(JsonDecoding, survivesDeepNestingEverywhere)
{
    constexpr auto depth = 100'000;
    const auto arrays = std::string(depth, '[') + std::string(depth, ']');
    EXPECT_FALSE(decodeJson<Record>(arrays));
    EXPECT_FALSE(decodeJson<Record>(std::string(depth, '[')));
    EXPECT_FALSE(decodeJson<Record>(R"({"isOn":true,"names":["a"],"extra":)" + arrays + "}"));
    EXPECT_EQ(decodeJson<Record>(
                  R"({"isOn":true,"names":["a"],"extra":)" + std::string(500, '[') + std::string(500, ']') + "}"),
        record("a"));
}

TEST(JsonEncoding, escapesWhatTheFormAsksForAndNothingElse)
{
    EXPECT_EQ(encodeJson("\"\\/\b\f\n\r\t\x01\x1F\0"s), R"("\"\\\/\b\f\n\r\t\u0001\u001f\u0000")");
    EXPECT_EQ(encodeJson("\x7F\u2028’🌙"s), "\"\x7F\u2028’🌙\"");
    EXPECT_EQ(encodeJson(Record { .count = -5, .isOn = false, .names = { "a", "" }, .tone = Tone::low }),
        R"({"count":-5,"isOn":false,"names":["a",""],"tone":"low"})");
    EXPECT_EQ(encodeJson(record("x")), R"({"isOn":true,"names":["x"]})");
}

TEST(JsonEncoding, isAFaultForWhatHasNoForm)
{
    EXPECT_EQ(encodeJson(std::vector { record("ok"), record("\xC3") }).error().text(),
        "[1].names[0]: text that is not UTF-8");
    EXPECT_EQ(encodeJson(std::vector { latestDate + std::chrono::seconds { 1 } }).error().where, "[0]");
    EXPECT_FALSE(encodeJson(std::numeric_limits<double>::infinity()));
}

TEST(UUIDs, areReadInEitherCaseAndWrittenInUpperCase)
{
    constexpr std::string_view text = "0A5E11ED-5A3B-4C1E-8F00-0000000000FF";
    EXPECT_EQ(UUID::fromText(text)->text(), text);
    EXPECT_EQ(UUID::fromText("0a5e11ed-5a3b-4c1e-8f00-0000000000ff")->text(), text);
    for (const auto wrong : { "", "0A5E11ED-5A3B-4C1E-8F00-0000000000F", "0A5E11ED-5A3B-4C1E-8F00-0000000000FFF",
             "0A5E11ED05A3B-4C1E-8F00-0000000000FF", "0A5E11ED-5A3B-4C1E-8F00-0000000000FG",
             "{A5E11ED-5A3B-4C1E-8F00-0000000000FF", "0A5E11ED-5A3B-4C1E-8F0-00000000000FF" })
        EXPECT_FALSE(UUID::fromText(wrong)) << wrong;
}
