#include "OrvelCopy/Popover.h"

#include <cmath>

#include "OrvelCopy/Copy.h"
#include "OrvelCopy/Insights.h"
#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelPlatform/Base/Precondition.h"

namespace orvel::Copy::Popover {

// TRANSLATORS: spoken: the name of the whole popover
std::string_view groupLabel() { return constant(KEY("Orvel")); }
// TRANSLATORS: the name of a Focus that runs
std::string_view focusTitle() { return constant(KEY("Focus")); }
std::string_view nothingRunning() { return constant(KEY("Nothing running")); }
std::string_view noBlocksToday() { return constant(KEY("No blocks today")); }
std::string_view nothingThisWeek() { return constant(KEY("Nothing scheduled this week")); }
// TRANSLATORS: the mildest level of a Block
std::string_view gentle() { return constant(KEY("Gentle")); }
// TRANSLATORS: the middle level of a Block
std::string_view firm() { return constant(KEY("Firm")); }
// TRANSLATORS: the level of a Block and its strictest mode
std::string_view firmUltraHard() { return constant(KEY("Firm · Ultra Hard")); }
// TRANSLATORS: spoken: the level of a Block and its strictest mode
std::string_view ultraHardSpoken() { return constant(KEY("Firm, Ultra Hard mode")); }

// TRANSLATORS: the label below a number: breaths today
std::string_view breaths() { return constant(KEY("breaths")); }
// TRANSLATORS: the label below a number: minutes spent breathing today
std::string_view minBreathed() { return constant(KEY("min breathed")); }
// TRANSLATORS: the label below a number: how often the user resisted today
std::string_view stayedOff() { return constant(KEY("stayed off")); }
// TRANSLATORS: spoken: there are no numbers yet
std::string_view numbersEmpty() { return constant(KEY("Today: nothing yet")); }

// TRANSLATORS: the words on a button
std::string_view breatheNow() { return constant(KEY("Breathe now")); }
// TRANSLATORS: the words on a button
std::string_view focusNow() { return constant(KEY("Focus now…")); }
// TRANSLATORS: the words on a button
std::string_view endFocusEarly() { return constant(KEY("End Focus early…")); }
// TRANSLATORS: the words on a button
std::string_view endFocus() { return constant(KEY("End Focus")); }
// TRANSLATORS: the words on a button
std::string_view openOrvel() { return constant(KEY("Open Orvel")); }
// TRANSLATORS: the words on a button
std::string_view settings() { return constant(KEY("Settings…")); }
std::string_view phoneSite() { return webAddress; }
// TRANSLATORS: the words on a button beside a problem
std::string_view fix() { return constant(KEY("Fix")); }

std::string_view noAccessibility()
{
    // TRANSLATORS: the room is the breath on the whole display instead of on one window
    return constant(KEY("Orvel can’t follow windows, so blocked apps get the room."));
}
std::string_view loginItem()
{
    return constant(KEY("Orvel won’t open when you log in, so Blocks pause after a restart."));
}
std::string_view switchedOff()
{
    return constant(KEY("Orvel was switched off in Login Items. Ultra Hard mode keeps going while it runs."));
}
std::string_view switchedOffWhileClosed()
{
    return constant(KEY("Ultra Hard mode was switched off while Orvel was closed."));
}

std::string appsAndMore(std::string_view names, std::int64_t more)
{
    // TRANSLATORS: %@ the names of apps, at least one
    return localized(COUNTED("%@ and %lld more"), names, more);
}
std::string until(std::string_view time, std::string_view left)
{
    // TRANSLATORS: %1$@ a clock time, %2$@ a span such as "1 h 5 m"
    return localized(KEY("until %@ · %@ left"), time, left);
}
std::string focusDetail(std::string_view until, std::int64_t minutesLeft, std::optional<std::string_view> lists)
{
    if (!lists)
        // TRANSLATORS: %@ a clock time
        return localized(COUNTED("Until %@ · %lld min left"), until, minutesLeft);
    // TRANSLATORS: %1$@ a clock time, %3$@ the names of Lists
    return localized(COUNTED("Until %@ · %lld min left · %@"), until, minutesLeft, *lists);
}
// TRANSLATORS: when something starts, inside a sentence: %@ a clock time
std::string at(std::string_view time) { return localized(KEY("at %@"), time); }
// TRANSLATORS: when something starts, inside a sentence: %@ a clock time
std::string tomorrowAt(std::string_view time) { return localized(KEY("tomorrow at %@"), time); }
// TRANSLATORS: when something starts, inside a sentence: %1$@ a weekday, %2$@ a clock time
std::string onDayAt(std::string_view day, std::string_view time) { return localized(KEY("on %@ at %@"), day, time); }
std::string firstStarts(std::string_view block, std::string_view when)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ such as "tomorrow at 09:00"
    return localized(KEY("%@ starts %@"), block, when);
}
// TRANSLATORS: %@ a sentence without its full stop, such as "Deep work starts at 09:00"
std::string firstDetail(std::string_view text) { return localized(KEY("Your first Block. %@."), text); }
std::string ultraHardNote(std::string_view until)
{
    // TRANSLATORS: %@ a clock time
    return localized(KEY("Ultra Hard mode: nothing ends it early. Orvel keeps running until %@."), until);
}
std::string nowUnlockSentence(std::string_view name, std::string_view mode, std::string_view until,
    std::string_view target, std::string_view left)
{
    // TRANSLATORS: spoken: %1$@ the name of a Block, %2$@ its level, %3$@ a clock time, %4$@ an app or website, %5$@ a
    // span
    return localized(KEY("%@, %@, until %@, %@ open for %@ more"), name, mode, until, target, left);
}
std::string spoken(Seconds remaining)
{
    if (remaining < Seconds { 60 })
        return localized(KEY("under a minute"));
    const auto minutes = std::ceil(remaining.count() / 60);
    precondition(minutes < 0x1p63, "a span is not a number, or has more minutes than a 64-bit number holds");
    return Insights::minutes(static_cast<std::int64_t>(minutes));
}
std::string numbers(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff)
{
    return localized(
        // TRANSLATORS: spoken: today’s numbers
        KEY("Today: %lld breaths, %lld minutes breathed, stayed off %lld times"), breaths, minutes, stayedOff);
}
// TRANSLATORS: goes on after the words "Breathe now" on a button: the length of the breath
std::string breatheDetail(std::int64_t minutes) { return localized(COUNTED("· %lld min"), minutes); }
std::string browserNeedsPermission(std::string_view browser)
{
    // TRANSLATORS: %1$@ and %2$@ the name of the same browser
    return localized(KEY("%@ needs permission. Websites in %@ aren’t blocked."), browser, browser);
}
std::string blockingPaused(std::optional<std::string_view> text)
{
    // TRANSLATORS: %@ a whole sentence
    return text ? localized(KEY("Blocking is paused. %@"), *text) : localized(KEY("Blocking is paused."));
}

}
