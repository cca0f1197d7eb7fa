#include "OrvelCopy/Widgets.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Widgets {

std::string_view statusName() { return constant(KEY("Orvel")); }
std::string_view statusDescription()
{
    return constant(KEY("What’s keeping things quiet now, today’s numbers and a breath."));
}
// TRANSLATORS: the name of a widget
std::string_view breatheName() { return constant(KEY("Breathe Now")); }
std::string_view breatheDescription() { return constant(KEY("A breath, one click away.")); }

// TRANSLATORS: stands above the name of the Block that runs now
std::string_view now() { return constant(KEY("Now")); }
// TRANSLATORS: stands above the name of the Block that runs next
std::string_view next() { return constant(KEY("Next")); }
std::string_view focus() { return constant(KEY("Focus")); }
std::string_view paused() { return constant(KEY("Paused")); }
// TRANSLATORS: the mildest level of a Block
std::string_view gentle() { return constant(KEY("Gentle")); }
// TRANSLATORS: the middle level of a Block
std::string_view firm() { return constant(KEY("Firm")); }
// TRANSLATORS: the strictest level of a Block
std::string_view ultraHard() { return constant(KEY("Ultra Hard")); }

std::string_view pausedTitle() { return constant(KEY("Blocking is paused")); }
std::string_view pausedSmall() { return constant(KEY("Breathe now still works")); }
std::string_view noBlocks() { return constant(KEY("No Blocks yet")); }
std::string_view noBlocksSmall() { return constant(KEY("Set one up in Orvel")); }
std::string_view noBlocksDetail() { return constant(KEY("Open Orvel to set one up.")); }
std::string_view nothingScheduled() { return constant(KEY("No Blocks this week")); }
std::string_view nothingScheduledSmall() { return constant(KEY("Breathe now still works")); }
std::string_view nothingScheduledDetail()
{
    return constant(KEY("Your Blocks are off this week. Breathe now still works."));
}

// TRANSLATORS: the label below a number: breaths today
std::string_view breaths() { return constant(KEY("breaths")); }
// TRANSLATORS: the label below a number: minutes spent breathing today
std::string_view minutesBreathed() { return constant(KEY("min breathed")); }
// TRANSLATORS: the label below a number: how often the user resisted today
std::string_view stayedOff() { return constant(KEY("stayed off")); }
std::string_view stayedOffThisWeek() { return constant(KEY("Stayed off, this week")); }
// TRANSLATORS: the words on a button
std::string_view breatheNow() { return constant(KEY("Breathe now")); }
std::string_view todayEmpty() { return constant(KEY("Nothing counted yet today.")); }

// TRANSLATORS: %@ a clock time
std::string until(std::string_view time) { return localized(KEY("until %@"), time); }
// TRANSLATORS: %@ a clock time
std::string ends(std::string_view time) { return localized(KEY("ends %@"), time); }
// TRANSLATORS: %@ a clock time
std::string tomorrow(std::string_view time) { return localized(KEY("Tomorrow %@"), time); }
// TRANSLATORS: %1$@ an abbreviated weekday, %2$@ a clock time
std::string onDay(std::string_view day, std::string_view time) { return localized(KEY("%@ %@"), day, time); }
std::string untilLeft(std::string_view time, std::string_view left)
{
    // TRANSLATORS: %1$@ a clock time, %2$@ a span such as "1 h 5 m"
    return localized(KEY("Until %@ · %@ left"), time, left);
}
std::string openUntil(std::string_view name, std::string_view time)
{
    // TRANSLATORS: %1$@ the name of an app or website, %2$@ a clock time
    return localized(KEY("%@ open until %@"), name, time);
}
std::string minutesLeft(std::int64_t minutes) { return localized(COUNTED("%lld min left"), minutes); }
std::string endsAt(std::string_view time, std::optional<std::string_view> lists)
{
    // TRANSLATORS: %1$@ a clock time, %2$@ the names of Lists
    return lists ? localized(KEY("Ends at %@ · %@"), time, *lists) : localized(KEY("Ends at %@"), time);
}
// TRANSLATORS: %1$@ a day and a time, %2$@ the level of a Block
std::string startsMode(std::string_view when, std::string_view mode) { return localized(KEY("%@ · %@"), when, mode); }
std::string spanMode(std::string_view start, std::string_view end, std::string_view mode)
{
    // TRANSLATORS: %1$@ a day and a time, %2$@ the time of the end, %3$@ the level of a Block
    return localized(KEY("%@ – %@ · %@"), start, end, mode);
}
std::string pausedDetail(std::int64_t blocks)
{
    return blocks == 0 ? localized(KEY("Open Orvel to block again."))
                       : localized(COUNTED("Your %lld Blocks are saved."), blocks);
}
std::string breatheNowFor(std::int64_t minutes) { return localized(COUNTED("Breathe now · %lld min"), minutes); }
std::string session(std::int64_t minutes, std::string_view style)
{
    // TRANSLATORS: %@ a style of breath, such as "Calm"
    return localized(COUNTED("%lld min · %@"), minutes, style);
}
std::string style(std::string_view style)
{
    if (style == "reset")
        // TRANSLATORS: a style of breath
        return localized(KEY("Reset"));
    if (style == "ground")
        // TRANSLATORS: a style of breath
        return localized(KEY("Ground"));
    // TRANSLATORS: a style of breath
    return localized(KEY("Calm"));
}
std::string sentence(
    std::optional<std::string_view> kicker, std::string_view title, std::string_view detail, std::string_view today)
{
    // TRANSLATORS: spoken: %1$@ such as "Now", then the title, the detail and today’s numbers
    return kicker ? localized(KEY("Orvel. %@: %@, %@. %@"), *kicker, title, detail, today)
                  : localized(KEY("Orvel. %@, %@. %@"), title, detail, today);
}
std::string todaySentence(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff)
{
    return localized(
        KEY("Today: %lld breaths, %lld minutes breathed, stayed off %lld times."), breaths, minutes, stayedOff);
}
std::string breatheSentence(std::int64_t minutes)
{
    // TRANSLATORS: spoken: the widget that begins a breath
    return localized(COUNTED("Orvel, Breathe now, %lld minute. Opens a breath."), minutes);
}

}
