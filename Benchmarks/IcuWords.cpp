#include "Benchmarks/IcuWords.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

#include "OrvelPlatform/Base/Match.h"

namespace orvelbench {

namespace {

using namespace orvel;
using State = WidgetSnapshot::State;

void check(UErrorCode status)
{
    if (U_FAILURE(status))
        throw std::runtime_error(u_errorName(status));
}

std::string text(const icu::UnicodeString& characters)
{
    std::string bytes;
    return characters.toUTF8String(bytes);
}

std::string clockTime(Date date, const Calendar& calendar)
{
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(icu::Locale::getUK(), status));
    check(status);
    icu::SimpleDateFormat format(patterns->getBestPattern(u"jmm", status), icu::Locale::getUK(), status);
    check(status);
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    const auto wall = calendar.timeZone().wallTime(date).time_since_epoch();
    icu::UnicodeString characters;
    return text(format.format(static_cast<UDate>(wall / std::chrono::milliseconds { 1 }), characters));
}

std::vector<std::string> letters(const std::vector<WidgetSnapshot::Day>& week, const Calendar& calendar)
{
    auto status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(icu::Locale::getUK(), status);
    check(status);
    std::int32_t count = 0;
    const auto* names = symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::NARROW);
    std::vector<std::string> letters;
    for (const auto& day : week)
        letters.push_back(text(names[calendar.weekday(day.start)]));
    return letters;
}

/// The instants whose clock times the state's lines show.
std::vector<Date> shownInstants(const WidgetMoment& moment)
{
    using Dates = std::vector<Date>;
    const auto unlockOrEnd = [&](const WidgetSnapshot::Running& running) -> Dates {
        const auto end = running.end.value_or(moment.date);
        return running.unlock ? Dates { end, running.unlock->end } : Dates { end };
    };
    return std::visit(Match {
                          [&](const State::Block& block) { return unlockOrEnd(block.running); },
                          [&](const State::Focus& focus) { return Dates { focus.running.end.value_or(moment.date) }; },
                          [](const State::FocusFilter&) { return Dates {}; },
                          [](const State::Next& next) {
                              return Dates { next.upcoming.start, next.upcoming.end };
                          },
                          [](State::NothingScheduled) { return Dates {}; },
                          [](State::NoBlocks) { return Dates {}; },
                      },
        moment.state);
}

}

LocalWords wordsWithIcu(const OrvelEntry& entry, const Calendar& calendar)
{
    LocalWords words { .times = {}, .weekdays = letters(entry.moment.week, calendar) };
    for (const auto date : shownInstants(entry.moment))
        words.times.push_back(clockTime(date, calendar));
    return words;
}

bool standIn(const LocalWords& words, const WidgetContent& content)
{
    const auto lines = content.smallDetail + content.detail;
    return std::ranges::all_of(words.times, [&](const auto& time) { return lines.contains(time); })
        && std::ranges::equal(words.weekdays, content.week, {}, {}, &WidgetContent::Bar::label);
}

}
