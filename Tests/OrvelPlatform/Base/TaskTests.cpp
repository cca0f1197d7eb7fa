#include "OrvelPlatform/Base/Task.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "OrvelPlatform/Base/Clock.h"
#include "Tests/Support/HandMovedClock.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

/// Says in a journal when it is destroyed.
struct Mark {
    std::vector<std::string>* journal;
    std::string name;
    Mark(std::vector<std::string>* itsJournal, std::string itsName) : journal(itsJournal), name(std::move(itsName)) { }
    Mark(Mark&& other) noexcept : journal(std::exchange(other.journal, nullptr)), name(std::move(other.name)) { }
    Mark& operator=(Mark&&) = delete;
    ~Mark()
    {
        if (journal)
            journal->push_back("end of " + name);
    }
};

Task<std::string> slept(Clock* clock, Clock::Uptime span, std::string value, Mark)
{
    auto sleep = clock->sleep(span);
    co_await sleep;
    if (value.empty())
        throw std::runtime_error("nothing to say");
    co_return value;
}

Task<std::string> sleptTwice(Clock* clock, std::vector<std::string>* journal, std::string second)
{
    const Mark mark(journal, "both");
    auto first = slept(clock, 1s, "first", Mark(journal, "first"));
    auto text = co_await first;
    auto next = slept(clock, 1s, std::move(second), Mark(journal, "second"));
    text += co_await next;
    co_return text;
}

Task<int> sum(int of)
{
    if (of == 0)
        co_return 0;
    auto rest = sum(of - 1);
    const auto value = co_await rest;
    co_return value + 1;
}

Task<int> count(int times)
{
    auto total = 0;
    for (auto time = 0; time < times; ++time) {
        auto one = sum(1);
        total += co_await one;
    }
    co_return total;
}

Task<SleepEnd> rest(Clock* clock, Cancellation cancellation)
{
    auto sleep = clock->sleep(1min, cancellation);
    const auto end = co_await sleep;
    co_return end;
}

struct Waiting {
    HandMovedClock clock { dateFromISO8601("2026-03-04T10:48:30Z").value() };
    std::vector<std::string> journal;
    std::optional<TaskOutcome<std::string>> outcome;

    StartedTask begin(std::string second)
    {
        return start(sleptTwice(&clock, &journal, std::move(second)), [this](auto result) { outcome = result; });
    }
};

}

TEST(Tasks, beginWhenAwaitedAndHandTheirValuesOn)
{
    Waiting waiting;
    auto work = waiting.begin(", second");
    waiting.clock.advance(1999ms);
    EXPECT_FALSE(waiting.outcome);
    EXPECT_FALSE(work.isOver());
    waiting.clock.advance(1ms);
    EXPECT_EQ(waiting.outcome.value().value(), "first, second");
    EXPECT_TRUE(work.isOver());
}

TEST(Tasks, throwWhereTheyAreAwaited)
{
    Waiting waiting;
    auto work = waiting.begin("");
    waiting.clock.advance(2s);
    ASSERT_TRUE(waiting.outcome && !waiting.outcome->has_value());
    EXPECT_THROW(std::rethrow_exception(waiting.outcome->error()), std::runtime_error);
}

TEST(Tasks, areGivenUpWithAllThatTheyAwait)
{
    Waiting waiting;
    {
        auto work = waiting.begin("second");
        waiting.clock.advance(1500ms);
        waiting.journal.clear();
    }
    EXPECT_EQ(waiting.journal, (std::vector<std::string> { "end of second", "end of first", "end of both" }));
    EXPECT_EQ(waiting.clock.waiting(), 0);
    EXPECT_FALSE(waiting.outcome);
}

TEST(Tasks, mayBeForgottenByTheirCompletion)
{
    Waiting waiting;
    std::optional<StartedTask> work;
    work = start(sleptTwice(&waiting.clock, &waiting.journal, "second"), [&](auto) { work.reset(); });
    waiting.clock.advance(2s);
    EXPECT_FALSE(work);
}

TEST(Tasks, goOnByThemselvesWhenDetached)
{
    Waiting waiting;
    waiting.begin("second").detach();
    waiting.clock.advance(2s);
    EXPECT_TRUE(waiting.outcome);
}

TEST(Tasks, thatAwaitOneAnotherInALoopDoNotGrowTheStack)
{
    std::optional<int> total; // on the stack it would need many times what there is
    auto work = start(count(100'000), [&](auto outcome) { total = outcome.value(); });
    EXPECT_EQ(total, 100'000);
}

TEST(Sleeps, endAtOnceWhenCancelledAndOnTimeOtherwise)
{
    struct Case {
        std::string_view name;
        bool isCancelledBefore, isCancelledMeanwhile;
        std::optional<SleepEnd> end;
        int calls; // of the clock
    };
    const Case cases[] = {
        { "not cancelled", false, false, SleepEnd::due, 1 },
        { "cancelled meanwhile", false, true, SleepEnd::cancelled, 0 },
        { "cancelled before", true, false, SleepEnd::cancelled, 0 },
    };
    for (const auto& c : cases) {
        Waiting waiting;
        const Cancellation cancellation;
        if (c.isCancelledBefore)
            cancellation.cancel();
        std::optional<SleepEnd> end;
        auto work = start(rest(&waiting.clock, cancellation), [&](auto outcome) { end = outcome.value(); });
        waiting.clock.advance(30s);
        if (c.isCancelledMeanwhile)
            cancellation.cancel();
        EXPECT_EQ(work.isOver(), c.isCancelledBefore || c.isCancelledMeanwhile) << c.name;
        waiting.clock.advance(30s);
        EXPECT_EQ(end, c.end) << c.name;
        EXPECT_EQ(waiting.clock.calls(), c.calls) << c.name;
    }
}
