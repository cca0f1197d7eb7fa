#include "OrvelWidgets/OrvelProvider.h"

#include <utility>

#include "OrvelShared/WidgetMoments.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

namespace orvel {

namespace {

constexpr std::chrono::hours withoutSnapshot { 1 };

OrvelEntry placeholderEntry(const Calendar& calendar)
{
    auto moment = WidgetFixtures::moment(WidgetContent::State::now, calendar);
    return { .date = moment.date, .moment = std::move(moment) };
}

OrvelEntry fallbackEntry(Date now, const Calendar& calendar)
{
    return { .date = now, .moment = fallbackMoment(now, calendar) };
}

}

OrvelProvider::OrvelProvider()
    : OrvelProvider(
        { .now = orvel::now, .calendar = Calendar::current, .snapshot = [] { return WidgetSnapshot::file().read(); } })
{
}

OrvelProvider::OrvelProvider(Sources sources) : m_sources(std::move(sources)) { }

OrvelEntry OrvelProvider::placeholder(const Context&) const
{
    return placeholderEntry(m_sources.calendar());
}

OrvelEntry OrvelProvider::getSnapshot(const Context& in) const
{
    const auto calendar = m_sources.calendar();
    if (const auto snapshot = m_sources.snapshot()) {
        const auto now = m_sources.now();
        return { .date = now, .moment = snapshot->moment(now, calendar) };
    }
    return in.isPreview ? placeholderEntry(calendar) : fallbackEntry(m_sources.now(), calendar);
}

OrvelTimeline OrvelProvider::getTimeline(const Context&) const
{
    const auto now = m_sources.now();
    const auto calendar = m_sources.calendar();
    const auto snapshot = m_sources.snapshot();
    if (!snapshot)
        return { .entries = { fallbackEntry(now, calendar) }, .reload = now + withoutSnapshot };

    const auto dates = snapshot->timelineDates(now, calendar, countdownSpan, limit);
    OrvelTimeline timeline { .entries = {}, .reload = snapshot->reloadDate(dates, now) };
    timeline.entries.reserve(dates.size());
    WidgetMoments moments(*snapshot, calendar);
    for (const auto date : dates)
        timeline.entries.push_back({ .date = date, .moment = moments.moment(date) });
    return timeline;
}

WidgetMoment fallbackMoment(Date now, const Calendar& calendar)
{
    const WidgetSnapshot::Day today {
        .start = calendar.startOfDay(now), .breaths = 0, .minutesBreathed = 0, .stayedOff = 0
    };
    return {
        .date = now,
        .state = WidgetSnapshot::State::NoBlocks {},
        .isRunning = true, // the empty state, not the paused one
        .blockCount = 0,
        .today = today,
        .week = { today },
        .breathe = { .style = "calm", .minutes = 1 },
        .focusMinutes = 50,
    };
}

}
