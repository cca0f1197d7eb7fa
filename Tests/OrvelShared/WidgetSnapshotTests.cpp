#include "OrvelShared/WidgetSnapshot.h"

#include <gmock/gmock.h>

#include "OrvelShared/WidgetSnapshotForm.h"
#include "Tests/OrvelShared/Samples.h"

using namespace orvel;
using testing::HasSubstr;

namespace {

/// A file with one phase in a state; every other field is as small as it can be.
std::string fileWithState(std::string_view state)
{
    return R"({"blockCount":0,"blocks":[],"breathe":{"minutes":1,"style":"calm"},"days":[],"focusMinutes":50,)"
           R"("horizon":"2026-03-03T00:00:00Z","isRunning":true,"lists":[],)"
           R"("phases":[{"start":"2026-03-02T09:00:00Z","state":)"
        + std::string(state) + R"(}],"writtenAt":"2026-03-02T08:59:00Z"})";
}

WidgetSnapshot snapshotWithState(State state)
{
    auto snapshot = emptySnapshot(date("2026-03-03T00:00:00Z"));
    snapshot.writtenAt = date("2026-03-02T08:59:00Z");
    snapshot.blockCount = 0;
    snapshot.breathe.minutes = 1;
    snapshot.focusMinutes = 50;
    snapshot.phases = { { .start = date("2026-03-02T09:00:00Z"), .state = std::move(state) } };
    return snapshot;
}

/// `text` with the one place of `part` replaced.
std::string replaced(std::string text, std::string_view part, std::string_view with)
{
    const auto place = text.find(part);
    if (place == std::string::npos)
        throw std::invalid_argument(std::string(part));
    return text.replace(place, part.size(), with);
}

constexpr std::string_view fullRunning =
    R"({"end":"2026-03-02T12:00:00Z","level":"ultraHard","listNames":["Social","A\/B"],)"
    R"("look":{"color":"sage","symbol":"moon"},"name":"Morning","names":["Morning","50%@ \"🌙\""],)"
    R"("start":"2026-03-02T09:00:00Z","unlock":{"end":"2026-03-02T09:15:00Z","name":"Chat"}})";

WidgetSnapshot::Running fullRunningRecord()
{
    auto record = running(date("2026-03-02T09:00:00Z"), date("2026-03-02T12:00:00Z"));
    record.names = { "Morning", "50%@ \"🌙\"" };
    record.look = { .color = "sage", .symbol = "moon" };
    record.level = WidgetSnapshot::Level::ultraHard;
    record.listNames = { "Social", "A/B" };
    record.unlock = { .name = "Chat", .end = date("2026-03-02T09:15:00Z") };
    return record;
}

}

TEST(WidgetSnapshotForm, isExactInBothDirections)
{
    const auto leastRunning = running(date("2026-03-02T09:00:00Z"), std::nullopt);
    const WidgetSnapshot::Upcoming upcoming { .name = "Evening",
        .look = std::nullopt,
        .start = date("2026-03-02T19:00:00Z"),
        .end = date("2026-03-02T22:00:00Z"),
        .level = WidgetSnapshot::Level::gentle };
    const std::pair<State, std::string> cases[] = {
        { State::Block { fullRunningRecord() }, R"({"block":{"_0":)" + std::string(fullRunning) + "}}" },
        { State::Focus { leastRunning },
            R"({"focus":{"_0":{"level":"firm","listNames":["Social"],"name":"Morning","names":["Morning"],)"
            R"("start":"2026-03-02T09:00:00Z"}}})" },
        { State::FocusFilter { leastRunning },
            R"({"focusFilter":{"_0":{"level":"firm","listNames":["Social"],"name":"Morning","names":["Morning"],)"
            R"("start":"2026-03-02T09:00:00Z"}}})" },
        { State::Next { upcoming },
            R"({"next":{"_0":{"end":"2026-03-02T22:00:00Z","level":"gentle","name":"Evening",)"
            R"("start":"2026-03-02T19:00:00Z"}}})" },
        { State::NothingScheduled {}, R"({"nothingScheduled":{}})" },
        { State::NoBlocks {}, R"({"noBlocks":{}})" },
    };
    for (const auto& [state, json] : cases) {
        EXPECT_EQ(encodeJson(snapshotWithState(state)), fileWithState(json));
        EXPECT_EQ(decodeJson<WidgetSnapshot>(fileWithState(json)), snapshotWithState(state)) << json;
    }
}

TEST(WidgetSnapshotForm, holdsDaysListsAndBlocks)
{
    auto snapshot = snapshotWithState(State::NoBlocks {});
    snapshot.days = { { .start = date("2026-03-02T00:00:00Z"), .breaths = 1, .minutesBreathed = 2, .stayedOff = -3 } };
    const auto id = UUID::fromText("0A5E11ED-5A3B-4C1E-8F00-000000000001").value();
    snapshot.lists = { { .id = id, .name = "Social", .look = { .color = "rose", .symbol = "message" } } };
    snapshot.blocks = { { .id = id,
        .name = "",
        .look = { .color = "", .symbol = "" },
        .level = WidgetSnapshot::Level::gentle,
        .isEnabled = true,
        .isRunning = false } };
    auto file = fileWithState(R"({"noBlocks":{}})");
    file = replaced(file, R"("days":[])",
        R"("days":[{"breaths":1,"minutesBreathed":2,"start":"2026-03-02T00:00:00Z","stayedOff":-3}])");
    file = replaced(file, R"("lists":[])",
        R"("lists":[{"id":"0A5E11ED-5A3B-4C1E-8F00-000000000001","look":{"color":"rose","symbol":"message"},"name":"Social"}])");
    file = replaced(file, R"("blocks":[])",
        R"("blocks":[{"id":"0A5E11ED-5A3B-4C1E-8F00-000000000001","isEnabled":true,"isRunning":false,)"
        R"("level":"gentle","look":{"color":"","symbol":""},"name":""}])");
    EXPECT_EQ(encodeJson(snapshot), file);
    EXPECT_EQ(decodeJson<WidgetSnapshot>(file), snapshot);
}

TEST(WidgetSnapshotForm, takesOneKnownCaseAmongOtherKeys)
{
    for (const auto json :
        { R"({"noBlocks":{},"paused":1})", R"({"noBlocks":{"_0":7}})", R"({"noBlocks":{},"noBlocks":{"twice":true}})" })
        EXPECT_EQ(decodeJson<WidgetSnapshot>(fileWithState(json)), snapshotWithState(State::NoBlocks {})) << json;
}

TEST(WidgetSnapshotForm, tellsADamageByItsPathAndReason)
{
    const auto state = "phases[0].state";
    const std::string count = "Invalid number of keys found, expected one.";
    const auto block = [](std::string_view running) { return R"({"block":{"_0":)" + std::string(running) + "}}"; };
    const auto damaged = [&](std::string_view part, std::string_view with) {
        return block(replaced(std::string(fullRunning), part, with));
    };
    const std::tuple<std::string, std::string, std::string> cases[] = {
        { R"({})", "", count },
        { R"({"paused":{}})", "", count },
        { R"({"noBlocks":{},"next":{}})", "", count },
        { R"({"noBlocks":null})", ".noBlocks", "expected an object, found null" },
        { R"({"noBlocks":[]})", ".noBlocks", "expected an object, found an array" },
        { R"({"nothingScheduled":5})", ".nothingScheduled", "expected an object, found a number" },
        { R"("noBlocks")", "", "expected an object, found text" },
        { R"({"focus":{}})", ".focus._0", "is required and missing" },
        { R"({"focus":{"_0":null}})", ".focus._0", "expected an object, found null" },
        { damaged("ultraHard", "Firm"), ".block._0.level", "unknown level \"Firm\"" },
        { damaged("12:00:00Z", "12:00:00.5Z"), ".block._0.end", "malformed date \"2026-03-02T12:00:00.5Z\"" },
        { damaged(R"("2026-03-02T12:00:00Z")", "12"), ".block._0.end", "expected a date as text, found a number" },
        { damaged(R"({"color":"sage","symbol":"moon"})", R"({"color":"sage"})"), ".block._0.look.symbol",
            "is required and missing" },
        { damaged(R"("names":)", R"("nomes":)"), ".block._0.names", "is required and missing" },
        { damaged(R"(,"name":"Chat")", R"(,"name":null)"), ".block._0.unlock.name", "expected text, found null" },
    };
    for (const auto& [json, path, why] : cases) {
        const auto snapshot = decodeJson<WidgetSnapshot>(fileWithState(json));
        ASSERT_FALSE(snapshot) << json;
        EXPECT_EQ(snapshot.error().where, state + path) << json;
        EXPECT_EQ(snapshot.error().why, why) << json;
    }
    EXPECT_EQ(decodeJson<WidgetSnapshot>("[]").error().text(), "expected an object, found an array");
}

TEST(WidgetSnapshotForm, needsEveryFieldOfTheRecord)
{
    const auto file = fileWithState(R"({"noBlocks":{}})");
    for (const std::string_view key : { "blockCount", "blocks", "breathe", "days", "focusMinutes", "horizon",
             "isRunning", "lists", "phases", "writtenAt" }) {
        const auto damaged = replaced(file, '"' + std::string(key) + '"', "\"other\"");
        EXPECT_EQ(decodeJson<WidgetSnapshot>(damaged).error().text(), std::string(key) + ": is required and missing");
    }
}

TEST(Days, areEmptyWhenNothingWasCounted)
{
    EXPECT_TRUE((WidgetSnapshot::Day { .start = {}, .breaths = 0, .minutesBreathed = 0, .stayedOff = 0 }).isEmpty());
    EXPECT_FALSE((WidgetSnapshot::Day { .start = {}, .breaths = 1, .minutesBreathed = 0, .stayedOff = 0 }).isEmpty());
    EXPECT_FALSE((WidgetSnapshot::Day { .start = {}, .breaths = 0, .minutesBreathed = 1, .stayedOff = 0 }).isEmpty());
    EXPECT_FALSE((WidgetSnapshot::Day { .start = {}, .breaths = 0, .minutesBreathed = 0, .stayedOff = 1 }).isEmpty());
}
