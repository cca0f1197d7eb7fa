#include "OrvelWidgetsUI/WidgetContent.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

#include "OrvelCopy/FocusFilter.h"
#include "OrvelCopy/Widgets.h"
#include "OrvelPlatform/Base/Match.h"
#include "OrvelWidgetsUI/WidgetWords.h"

namespace orvel {

namespace {

namespace Words = Copy::Widgets;
using State = WidgetSnapshot::State;

constexpr std::string_view defaultTone = "lavender";
constexpr std::string_view blockSymbol = "shield";
constexpr std::string_view focusSymbol = "timer";
constexpr std::string_view quietSymbol = "moon";
constexpr std::string_view pausedSymbol = "pause";
constexpr std::string_view breatheSymbol = "circle.circle";

/// The part of a content that follows from the state.
struct Lines {
    WidgetContent::State state;
    std::optional<std::string> kicker;
    std::string smallTitle;
    std::string smallDetail;
    std::string title;
    std::string detail;
    std::string symbol;
    std::string tone { defaultTone };
    std::optional<double> progress {};
    bool showsRing = false;
    OrvelLink link = OrvelLink::Today {};
};

/// What runs without an end is over now.
Date endOrNow(const WidgetSnapshot::Running& running, const WidgetWords& words)
{
    return running.end.value_or(words.now);
}

std::string symbolOf(const std::optional<WidgetSnapshot::Look>& look, std::string_view otherwise)
{
    return look ? look->symbol : std::string(otherwise);
}

std::string toneOf(const std::optional<WidgetSnapshot::Look>& look)
{
    return look ? look->color : std::string(defaultTone);
}

Lines pausedLines(const WidgetMoment& moment)
{
    return {
        .state = WidgetContent::State::paused,
        .kicker = std::string(Words::paused()),
        .smallTitle = std::string(Words::pausedTitle()),
        .smallDetail = std::string(Words::pausedSmall()),
        .title = std::string(Words::pausedTitle()),
        .detail = Words::pausedDetail(moment.blockCount),
        .symbol = std::string(pausedSymbol),
    };
}

Lines blockLines(const WidgetSnapshot::Running& block, const WidgetWords& words)
{
    const auto end = endOrNow(block, words);
    const auto names = joined(block.names, " · ");
    return {
        .state = WidgetContent::State::now,
        .kicker = std::string(Words::now()),
        .smallTitle = names,
        .smallDetail = Words::until(words.time(end)),
        .title = names,
        .detail = block.unlock ? Words::openUntil(block.unlock->name, words.time(block.unlock->end))
                               : Words::untilLeft(words.time(end), words.remaining(end)),
        .symbol = symbolOf(block.look, blockSymbol),
        .tone = toneOf(block.look),
        .progress = words.shareLeft(block.start, end),
    };
}

Lines focusLines(const WidgetSnapshot::Running& focus, const WidgetWords& words)
{
    const auto end = endOrNow(focus, words);
    const auto left = Words::minutesLeft(words.minutesUntil(end));
    const auto lists = joined(focus.listNames, ", ");
    return {
        .state = WidgetContent::State::focus,
        .kicker = std::string(Words::focus()),
        .smallTitle = left,
        .smallDetail = Words::ends(words.time(end)),
        .title = left,
        .detail = Words::endsAt(
            words.time(end), focus.listNames.empty() ? std::nullopt : std::optional<std::string_view>(lists)),
        .symbol = std::string(focusSymbol),
        .progress = words.shareLeft(focus.start, end),
        .showsRing = true,
    };
}

Lines focusFilterLines(const WidgetSnapshot::Running& filter, const WidgetWords& words)
{
    auto quiet = Copy::FocusFilter::quiet(words.locale.list(filter.listNames));
    return {
        .state = WidgetContent::State::now,
        .kicker = std::string(Words::now()),
        .smallTitle = filter.name,
        .smallDetail = quiet,
        .title = filter.name,
        .detail = Words::startsMode(quiet, levelWord(filter.level)),
        .symbol = std::string(quietSymbol),
    };
}

Lines nextLines(const WidgetSnapshot::Upcoming& upcoming, const WidgetWords& words)
{
    const auto start = words.start(upcoming.start);
    const auto level = levelWord(upcoming.level);
    return {
        .state = WidgetContent::State::next,
        .kicker = std::string(Words::next()),
        .smallTitle = upcoming.name,
        .smallDetail = Words::startsMode(start, level),
        .title = upcoming.name,
        .detail = Words::spanMode(start, words.time(upcoming.end), level),
        .symbol = symbolOf(upcoming.look, quietSymbol),
        .tone = toneOf(upcoming.look),
    };
}

Lines nothingScheduledLines()
{
    return {
        .state = WidgetContent::State::none,
        .kicker = std::nullopt,
        .smallTitle = std::string(Words::nothingScheduled()),
        .smallDetail = std::string(Words::nothingScheduledSmall()),
        .title = std::string(Words::nothingScheduled()),
        .detail = std::string(Words::nothingScheduledDetail()),
        .symbol = std::string(quietSymbol),
    };
}

Lines noBlocksLines()
{
    return {
        .state = WidgetContent::State::none,
        .kicker = std::nullopt,
        .smallTitle = std::string(Words::noBlocks()),
        .smallDetail = std::string(Words::noBlocksSmall()),
        .title = std::string(Words::noBlocks()),
        .detail = std::string(Words::noBlocksDetail()),
        .symbol = std::string(blockSymbol),
        .link = OrvelLink::Main {},
    };
}

Lines lines(const WidgetMoment& moment, const WidgetWords& words)
{
    if (!moment.isRunning)
        return pausedLines(moment);
    return std::visit(Match {
                          [&](const State::Block& block) { return blockLines(block.running, words); },
                          [&](const State::Focus& focus) { return focusLines(focus.running, words); },
                          [&](const State::FocusFilter& filter) { return focusFilterLines(filter.running, words); },
                          [&](const State::Next& next) { return nextLines(next.upcoming, words); },
                          [](State::NothingScheduled) { return nothingScheduledLines(); },
                          [](State::NoBlocks) { return noBlocksLines(); },
                      },
        moment.state);
}

std::vector<WidgetContent::Number> numbers(const WidgetSnapshot::Day& today)
{
    const auto number = [](std::int64_t count, std::string_view label) {
        return WidgetContent::Number { .value = count == 0 ? "—" : fmt::to_string(count), .label = std::string(label) };
    };
    return { number(today.breaths, Words::breaths()), number(today.minutesBreathed, Words::minutesBreathed()),
        number(today.stayedOff, Words::stayedOff()) };
}

std::vector<WidgetContent::Bar> bars(
    const std::vector<WidgetSnapshot::Day>& week, const Locale& locale, const Calendar& calendar)
{
    std::vector<WidgetContent::Bar> bars;
    if (week.empty())
        return bars;
    const auto& symbols = locale.veryShortWeekdaySymbols();
    const auto top = std::ranges::max(week, {}, &WidgetSnapshot::Day::stayedOff).stayedOff;
    const auto divisor = static_cast<double>(std::max<std::int64_t>(top, 1));
    for (const auto& day : week) {
        const auto weekday = static_cast<std::size_t>(calendar.weekday(day.start) - 1);
        bars.push_back({ .label = symbols[weekday],
            .height = static_cast<double>(day.stayedOff) / divisor,
            .isToday = &day == &week.back() });
    }
    return bars;
}

std::string todayText(const WidgetSnapshot::Day& today)
{
    return today.isEmpty() ? std::string(Words::todayEmpty())
                           : Words::todaySentence(today.breaths, today.minutesBreathed, today.stayedOff);
}

}

WidgetContent WidgetContent::status(const WidgetMoment& moment, const Locale& locale, const Calendar& calendar)
{
    auto lines = orvel::lines(moment, { .locale = locale, .calendar = calendar, .now = moment.date });
    auto sentence = Words::sentence(lines.kicker, lines.title, lines.detail, todayText(moment.today));
    return {
        .state = lines.state,
        .kicker = std::move(lines.kicker),
        .smallTitle = std::move(lines.smallTitle),
        .smallDetail = std::move(lines.smallDetail),
        .title = std::move(lines.title),
        .detail = std::move(lines.detail),
        .symbol = std::move(lines.symbol),
        .tone = std::move(lines.tone),
        .progress = lines.progress,
        .showsRing = lines.showsRing,
        .numbers = orvel::numbers(moment.today),
        .week = bars(moment.week, locale, calendar),
        .breatheMinutes = moment.breathe.minutes,
        .sentence = std::move(sentence),
        .link = std::move(lines.link),
    };
}

WidgetContent WidgetContent::breathe(const WidgetSnapshot::Breath& breath)
{
    const auto session = Words::session(breath.minutes, Words::style(breath.style));
    return {
        .state = State::breathe,
        .kicker = std::nullopt,
        .smallTitle = std::string(Words::breatheNow()),
        .smallDetail = session,
        .title = std::string(Words::breatheNow()),
        .detail = session,
        .symbol = std::string(breatheSymbol),
        .tone = std::string(defaultTone),
        .progress = std::nullopt,
        .showsRing = false,
        .numbers = {},
        .week = {},
        .breatheMinutes = breath.minutes,
        .sentence = Words::breatheSentence(breath.minutes),
        .link = OrvelLink::Breathe { .style = breath.style, .minutes = breath.minutes },
    };
}

}
