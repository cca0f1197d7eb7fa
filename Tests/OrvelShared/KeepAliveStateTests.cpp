#include "OrvelShared/KeepAliveState.h"

#include <gtest/gtest.h>

#include "Tests/OrvelShared/Samples.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

const auto present = date("2026-03-04T10:00:00Z");

/// A record that asks for everything: the application vanished in the middle of an Ultra Hard commitment.
KeepAliveState vanished()
{
    return {
        .pid = 4711,
        .appPath = "/opt/Orvel.app",
        .clean = false,
        .commitmentUntil = present + 1h,
        .ultraHard = true,
        .appReleased = false,
        .bypassNoted = false,
        .updatedAt = present - 121s,
    };
}

/// What a test changes of such a record, under a name.
struct Change {
    std::string_view name;
    void (*apply)(KeepAliveState&);
    bool expected;
};

}

TEST(KeepAliveStates, haveOneForm)
{
    auto state = vanished();
    state.bypassNoted = true;
    const std::string bytes = R"({"appPath":"\/opt\/Orvel.app","appReleased":false,"bypassNoted":true,"clean":false,)"
                              R"("commitmentUntil":"2026-03-04T11:00:00Z","pid":4711,"ultraHard":true,)"
                              R"("updatedAt":"2026-03-04T09:57:59Z"})";
    EXPECT_EQ(encodeJson(state), bytes);
    EXPECT_EQ(decodeJson<KeepAliveState>(bytes), state);
    state.commitmentUntil = std::nullopt;
    EXPECT_FALSE(encodeJson(state)->contains("commitmentUntil"));
}

TEST(KeepAliveStates, areReadFromWhatOlderWritersLeftOut)
{
    struct Case {
        std::string_view name, rest; // of a record with the required fields but "ultraHard"
        bool isRead, isReleased, isNoted;
    };
    const Case cases[] = {
        { "neither", R"("ultraHard":true)", true, false, false },
        { "both null", R"("appReleased":null,"bypassNoted":null,"ultraHard":true)", true, false, false },
        { "both", R"("appReleased":true,"bypassNoted":true,"ultraHard":true)", true, true, true },
        { "released, as a number", R"("appReleased":1,"ultraHard":true)", false, false, false },
        { "noted, as text", R"("bypassNoted":"true","ultraHard":true)", false, false, false },
        { "not Ultra Hard", R"("appReleased":true)", false, false, false },
        { "null for Ultra Hard", R"("ultraHard":null)", false, false, false },
    };
    for (const auto& c : cases) {
        const auto json =
            R"({"appPath":"/a","clean":true,"pid":1,"updatedAt":"2026-03-04T10:00:00Z",)" + std::string(c.rest) + "}";
        const auto state = decodeJson<KeepAliveState>(json);
        ASSERT_EQ(state.has_value(), c.isRead) << c.name;
        EXPECT_EQ(state && state->appReleased, c.isReleased) << c.name;
        EXPECT_EQ(state && state->bypassNoted, c.isNoted) << c.name;
    }
}

TEST(KeepAliveStates, haveProcessIdentifiersOf32Bits)
{
    struct Case {
        std::string_view pid;
        std::optional<std::int32_t> expected;
    };
    const Case cases[] = {
        { "2147483647", 2147483647 },
        { "-2147483648", -2147483648 },
        { "2147483648", std::nullopt },
        { "-2147483649", std::nullopt },
        { "4294967297", std::nullopt },
        { "1.5", std::nullopt },
    };
    for (const auto& c : cases) {
        const auto state = decodeJson<KeepAliveState>(
            R"({"appPath":"","clean":true,"ultraHard":false,"updatedAt":"2026-03-04T10:00:00Z","pid":)"
            + std::string(c.pid) + "}");
        EXPECT_EQ(state ? std::optional(state->pid) : std::nullopt, c.expected) << c.pid;
    }
}

TEST(KeepAliveStates, askForARelaunchWhileACommitmentRuns)
{
    const Change changes[] = {
        { "vanished", [](auto&) {}, true },
        { "in any mode", [](auto& state) { state.ultraHard = false; }, true },
        { "ended in order", [](auto& state) { state.clean = true; }, false },
        { "no commitment", [](auto& state) { state.commitmentUntil = std::nullopt; }, false },
        { "over at this instant", [](auto& state) { state.commitmentUntil = present; }, false },
        { "over the next instant", [](auto& state) { state.commitmentUntil = present + 1us; }, true },
    };
    for (const auto& change : changes) {
        auto state = vanished();
        change.apply(state);
        EXPECT_EQ(state.shouldRelaunch(present), change.expected) << change.name;
    }
}

TEST(KeepAliveStates, tellAnApplicationThatWasStopped)
{
    const Change changes[] = {
        { "vanished", [](auto&) {}, true },
        { "ended in order", [](auto& state) { state.clean = true; }, false },
        { "not Ultra Hard", [](auto& state) { state.ultraHard = false; }, false },
        { "no commitment", [](auto& state) { state.commitmentUntil = std::nullopt; }, false },
        { "two minutes ago", [](auto& state) { state.updatedAt = present - 120s; }, false },
        { "just beyond", [](auto& state) { state.updatedAt = present - 120s - 1us; }, true },
        { "a commitment that is over by now", [](auto& state) { state.commitmentUntil = present - 120s; }, true },
        { "stopped when it was over", [](auto& state) { state.commitmentUntil = state.updatedAt; }, false },
    };
    for (const auto& change : changes) {
        auto state = vanished();
        change.apply(state);
        EXPECT_EQ(state.wasBypassed(false, present), change.expected) << change.name;
        EXPECT_FALSE(state.wasBypassed(true, present)) << change.name;
    }
}

TEST(KeepAliveStates, openWhatIsInTheTrashOnlyForAnUltraHardCommitment)
{
    struct Case {
        std::string_view path;
        bool ultraHard, appReleased, expected;
    };
    const Case cases[] = {
        { "/opt/Orvel.app", false, false, true },
        { "/opt/Orvel.app", true, true, true },
        { "/home/a/.Trash/Orvel.app", true, false, true },
        { "/home/a/.Trash/Orvel.app", true, true, false },
        { "/home/a/.Trash/Orvel.app", false, false, false },
        { "/home/a/.Trash", false, false, true },
        { "/home/a/.Trashes/Orvel.app", false, false, true },
    };
    for (const auto& c : cases) {
        auto state = vanished();
        state.ultraHard = c.ultraHard;
        state.appReleased = c.appReleased;
        EXPECT_EQ(state.mayOpen(c.path), c.expected) << c.path << c.ultraHard << c.appReleased;
    }
}
