#include "Benchmarks/SampleSnapshot.h"

#include <array>
#include <cstdint>
#include <random>

namespace orvelbench {

namespace {

using namespace orvel;
using namespace std::chrono_literals;
using std::chrono::minutes;
using State = WidgetSnapshot::State;
using Level = WidgetSnapshot::Level;

constexpr std::size_t phaseCount = 100;
constexpr std::size_t dayCount = 14;

constexpr std::array<std::string_view, 8> blockNames { "Deep work", "Morning quiet", "No news", "Evenings offline",
    "Writing hours", "Study for the exam", "Wind down", "Weekend reset" };
constexpr std::array<std::string_view, 8> listNames { "Social", "News and weather", "Video sites", "Messengers",
    "Shopping", "Forums and boards", "Games and stores", "Mail at home" };
constexpr std::array<std::string_view, 6> colors { "indigo", "moss", "amber", "slate", "coral", "plum" };
constexpr std::array<std::string_view, 6> symbols { "moon.fill", "book.closed.fill", "leaf.fill", "sun.horizon.fill",
    "pencil.and.outline", "newspaper.fill" };

/// The choices that make the sample look grown. Only the engine's own numbers are used: distributions differ between
/// libraries.
class Choices {
public:
    std::size_t below(std::size_t count) { return m_engine() % count; }
    bool oneIn(std::size_t count) { return below(count) == 0; }

    template <typename Value, std::size_t size>
    Value among(const std::array<Value, size>& values)
    {
        return values[below(size)];
    }

private:
    std::minstd_rand m_engine { 7 };
};

WidgetSnapshot::Look look(Choices& choices)
{
    return { .color = std::string(choices.among(colors)), .symbol = std::string(choices.among(symbols)) };
}

std::optional<WidgetSnapshot::Look> lookOfMost(Choices& choices)
{
    return choices.oneIn(10) ? std::nullopt : std::optional(look(choices));
}

UUID uuid(Choices& choices)
{
    UUID uuid {};
    for (auto& byte : uuid.bytes)
        byte = static_cast<std::uint8_t>(choices.below(256));
    return uuid;
}

Level level(Choices& choices)
{
    return choices.among(allCases<Level>());
}

std::vector<std::string> quietLists(Choices& choices)
{
    std::vector<std::string> names;
    const auto first = choices.below(listNames.size());
    const auto count = 1 + choices.below(5);
    for (std::size_t index = 0; index < count; ++index)
        names.emplace_back(listNames[(first + index) % listNames.size()]);
    return names;
}

WidgetSnapshot::Running running(Choices& choices, std::string_view name, Date start, Date end)
{
    WidgetSnapshot::Running running {
        .name = std::string(name),
        .names = { std::string(name) },
        .look = lookOfMost(choices),
        .start = start,
        .end = end,
        .level = level(choices),
        .listNames = quietLists(choices),
        .unlock = std::nullopt,
    };
    if (choices.oneIn(5))
        running.names.emplace_back(choices.among(blockNames));
    if (choices.oneIn(6))
        running.unlock = { .name = std::string(choices.among(listNames)), .end = start + 10min };
    return running;
}

State next(Choices& choices, Date start)
{
    return State::Next { { .name = std::string(choices.among(blockNames)),
        .look = lookOfMost(choices),
        .start = start,
        .end = start + 90min,
        .level = level(choices) } };
}

/// Blocks and hand-started Focuses with the waits between them; now and then nothing is scheduled.
State state(Choices& choices, std::size_t index, Date start, Date end)
{
    if (index % 10 == 9)
        return State::NothingScheduled {};
    if (index % 2 == 1)
        return next(choices, end);
    if (index % 6 == 2)
        return State::Focus { running(choices, "Focus", start, end) };
    return State::Block { running(choices, choices.among(blockNames), start, end) };
}

minutes length(Choices& choices, std::size_t index)
{
    constexpr std::array lengths { 60min, 75min, 90min, 105min, 120min, 150min };
    return index % 10 == 9 ? 150min : choices.among(lengths);
}

std::vector<WidgetSnapshot::Phase> phases(Choices& choices)
{
    std::vector<WidgetSnapshot::Phase> phases;
    auto start = sampleNow() - 40min;
    auto end = sampleNow() + 2h + 27min + 33s;
    for (std::size_t index = 0; index < phaseCount; ++index) {
        phases.push_back({ .start = start, .state = state(choices, index, start, end) });
        start = end;
        end += length(choices, index);
    }
    return phases;
}

std::vector<WidgetSnapshot::Day> days(Choices& choices)
{
    // The sample's days begin at 23:00 UTC, as they do in its zone in winter.
    const auto today = std::chrono::floor<std::chrono::days>(sampleNow()) - 1h;
    std::vector<WidgetSnapshot::Day> days;
    for (auto back = dayCount; back-- > 0;) {
        const auto breaths = static_cast<std::int64_t>(choices.below(12));
        days.push_back({ .start = today - std::chrono::days { back },
            .breaths = breaths,
            .minutesBreathed = 3 * breaths,
            .stayedOff = static_cast<std::int64_t>(choices.below(20)) });
    }
    return days;
}

WidgetSnapshot emptySnapshot(Date horizon)
{
    return { .writtenAt = sampleNow() - 5min,
        .isRunning = true,
        .blockCount = static_cast<std::int64_t>(blockNames.size()),
        .phases = {},
        .horizon = horizon,
        .days = {},
        .breathe = { .style = "calm", .minutes = 3 },
        .focusMinutes = 50,
        .lists = {},
        .blocks = {} };
}

}

Date sampleNow()
{
    return std::chrono::sys_days { std::chrono::year { 2026 } / 3 / 25 } + 9h + 14min + 27s;
}

WidgetSnapshot sampleSnapshot()
{
    Choices choices;
    auto snapshot = emptySnapshot(sampleNow() + std::chrono::days { 7 });
    snapshot.phases = phases(choices);
    snapshot.days = days(choices);
    for (const auto name : listNames)
        snapshot.lists.push_back({ .id = uuid(choices), .name = std::string(name), .look = look(choices) });
    for (const auto name : blockNames) {
        snapshot.blocks.push_back({ .id = uuid(choices),
            .name = std::string(name),
            .look = look(choices),
            .level = level(choices),
            .isEnabled = !choices.oneIn(4),
            .isRunning = choices.oneIn(4) });
    }
    return snapshot;
}

WidgetSnapshot overlappingSnapshot(std::size_t phases)
{
    Choices choices;
    auto snapshot = emptySnapshot(sampleNow() + std::chrono::days { 7 });
    snapshot.phases.reserve(phases);
    while (snapshot.phases.size() < phases) {
        const auto start = sampleNow() - 1h;
        const auto end = sampleNow() + 4h + std::chrono::microseconds { choices.below(60'000'000) };
        snapshot.phases.push_back(
            { .start = start, .state = State::Block { running(choices, "Deep work", start, end) } });
        // A phase that starts after the span lets the one before it count to the span's end.
        snapshot.phases.push_back({ .start = sampleNow() + 4h, .state = State::NothingScheduled {} });
    }
    return snapshot;
}

WidgetSnapshot farSnapshot()
{
    Choices choices;
    auto snapshot = emptySnapshot(latestDate);
    snapshot.phases.push_back({ .start = sampleNow(),
        .state = State::Block { running(choices, "Deep work", sampleNow(), sampleNow() + 3h) } });
    return snapshot;
}

}
