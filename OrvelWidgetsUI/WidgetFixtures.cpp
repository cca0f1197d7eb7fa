#include "OrvelWidgetsUI/WidgetFixtures.h"

#include <utility>

namespace orvel::WidgetFixtures {

namespace {

using namespace std::chrono_literals;
using State = WidgetSnapshot::State;
using Level = WidgetSnapshot::Level;

const WidgetSnapshot::Look morningLook { .color = "lavender", .symbol = "shield" };
const WidgetSnapshot::Look eveningLook { .color = "sage", .symbol = "moon" };

/// Steps through the schedule: what holds from an instant until the next step.
class Schedule {
public:
    Schedule(Date at, const Calendar& calendar)
        : m_at(std::chrono::floor<std::chrono::minutes>(at)), m_calendar(calendar)
    {
    }

    Date horizon() const { return time(2, 12h); }

    std::vector<WidgetSnapshot::Phase> phases(Scene scene) const
    {
        switch (scene) {
        case Scene::block:
        case Scene::paused:
            return running(State::Block { morning() });
        case Scene::focus:
            return running(State::Focus { focus() });
        case Scene::focusFilter:
            return { { .start = m_at - 25min, .state = State::FocusFilter { focusFilter() } } };
        case Scene::next:
            return from(m_at - 1h);
        case Scene::nothingScheduled:
            return { { .start = m_at - 1h, .state = State::NothingScheduled {} } };
        case Scene::noBlocks:
            return { { .start = m_at - 1h, .state = State::NoBlocks {} } };
        }
        std::unreachable();
    }

private:
    /// A clock time some days after the schedule's own day.
    Date time(int days, std::chrono::hours clock) const
    {
        return m_calendar.date(WallTime { m_calendar.day(m_at) + std::chrono::days { days } + clock });
    }

    WidgetSnapshot::Running morning() const
    {
        return {
            .name = "Morning",
            .names = { "Morning", "Deep work" },
            .look = morningLook,
            .start = m_at - 108min,
            .end = m_at + 72min,
            .level = Level::firm,
            .listNames = { "Social", "Chat", "News" },
            .unlock = std::nullopt,
        };
    }

    WidgetSnapshot::Running focus() const
    {
        return {
            .name = "Focus",
            .names = { "Focus" },
            .look = std::nullopt,
            .start = m_at - 12min,
            .end = m_at + 38min,
            .level = Level::gentle,
            .listNames = { "Social", "Chat" },
            .unlock = std::nullopt,
        };
    }

    WidgetSnapshot::Running focusFilter() const
    {
        return {
            .name = "Work",
            .names = { "Work" },
            .look = std::nullopt,
            .start = m_at - 25min,
            .end = std::nullopt,
            .level = Level::gentle,
            .listNames = { "Social", "Chat", "News" },
            .unlock = std::nullopt,
        };
    }

    WidgetSnapshot::Upcoming evening() const
    {
        return {
            .name = "Evening", .look = eveningLook, .start = time(1, 19h), .end = time(1, 22h), .level = Level::firm
        };
    }

    WidgetSnapshot::Upcoming nextMorning() const
    {
        return { .name = "Morning", .look = morningLook, .start = time(2, 9h), .end = horizon(), .level = Level::firm };
    }

    static State asBlock(const WidgetSnapshot::Upcoming& upcoming)
    {
        return State::Block { {
            .name = upcoming.name,
            .names = { upcoming.name },
            .look = upcoming.look,
            .start = upcoming.start,
            .end = upcoming.end,
            .level = upcoming.level,
            .listNames = { "Social", "News" },
            .unlock = std::nullopt,
        } };
    }

    /// What follows once nothing runs.
    std::vector<WidgetSnapshot::Phase> from(Date start) const
    {
        const auto first = evening();
        const auto second = nextMorning();
        return {
            { .start = start, .state = State::Next { first } },
            { .start = first.start, .state = asBlock(first) },
            { .start = first.end, .state = State::Next { second } },
            { .start = second.start, .state = asBlock(second) },
            { .start = second.end, .state = State::NothingScheduled {} },
        };
    }

    template <typename Case>
    std::vector<WidgetSnapshot::Phase> running(const Case& now) const
    {
        auto phases = from(*now.running.end);
        phases.insert(phases.begin(), { .start = now.running.start, .state = now });
        return phases;
    }

    Date m_at;
    const Calendar& m_calendar;
};

/// A week as somebody lives it, today last.
std::vector<WidgetSnapshot::Day> days(Date at, const Calendar& calendar)
{
    struct Counts {
        std::int64_t breaths, minutesBreathed, stayedOff;
    };
    constexpr Counts week[] = { { 0, 0, 0 }, { 4, 10, 12 }, { 2, 4, 6 }, { 6, 14, 24 }, { 3, 5, 18 }, { 1, 1, 0 },
        { 3, 7, 12 } };
    std::vector<WidgetSnapshot::Day> days;
    auto back = static_cast<std::int64_t>(std::size(week));
    for (const auto& counts : week) {
        if (const auto start = calendar.addingDays(-(--back), calendar.startOfDay(at)))
            days.push_back({ .start = *start,
                .breaths = counts.breaths,
                .minutesBreathed = counts.minutesBreathed,
                .stayedOff = counts.stayedOff });
    }
    return days;
}

UUID id(std::uint8_t number)
{
    return { { 0x0A, 0x5E, 0x11, 0xED, 0x5A, 0x3B, 0x4C, 0x1E, 0x8F, 0x00, 0, 0, 0, 0, 0, number } };
}

std::vector<WidgetSnapshot::ListItem> lists()
{
    return {
        { .id = id(1), .name = "Social", .look = { .color = "rose", .symbol = "message" } },
        { .id = id(2), .name = "Chat", .look = { .color = "sky", .symbol = "phone" } },
        { .id = id(3), .name = "News", .look = { .color = "sand", .symbol = "newspaper" } },
    };
}

std::vector<WidgetSnapshot::BlockItem> blocks(bool isMorningRunning)
{
    const auto block = [](std::uint8_t number, std::string name, const WidgetSnapshot::Look& look, bool isRunning) {
        return WidgetSnapshot::BlockItem { .id = id(number),
            .name = std::move(name),
            .look = look,
            .level = Level::firm,
            .isEnabled = true,
            .isRunning = isRunning };
    };
    return {
        block(11, "Morning", morningLook, isMorningRunning),
        block(12, "Deep work", { .color = "periwinkle", .symbol = "book" }, isMorningRunning),
        block(13, "Evening", eveningLook, false),
    };
}

}

WidgetSnapshot snapshot(Scene scene, Date at, const Calendar& calendar)
{
    const Schedule schedule(at, calendar);
    auto items = scene == Scene::noBlocks ? std::vector<WidgetSnapshot::BlockItem>() : blocks(scene == Scene::block);
    return {
        .writtenAt = at,
        .isRunning = scene != Scene::paused,
        .blockCount = static_cast<std::int64_t>(items.size()),
        .phases = schedule.phases(scene),
        .horizon = schedule.horizon(),
        .days = days(at, calendar),
        .breathe = { .style = "calm", .minutes = 3 },
        .focusMinutes = 50,
        .lists = lists(),
        .blocks = std::move(items),
    };
}

Date sampleDate(const Calendar& calendar)
{
    using namespace std::chrono;
    return calendar.date(WallTime { local_days { year { 2026 } / March / 4 } + 10h + 48min });
}

Scene scene(WidgetContent::State state)
{
    switch (state) {
    case WidgetContent::State::now:
        return Scene::block;
    case WidgetContent::State::next:
    case WidgetContent::State::breathe:
        return Scene::next;
    case WidgetContent::State::focus:
        return Scene::focus;
    case WidgetContent::State::paused:
        return Scene::paused;
    case WidgetContent::State::none:
        return Scene::nothingScheduled;
    }
    std::unreachable();
}

WidgetMoment moment(WidgetContent::State state, const Calendar& calendar)
{
    const auto date = sampleDate(calendar);
    return snapshot(scene(state), date, calendar).moment(date, calendar);
}

}
