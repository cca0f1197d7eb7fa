#include "OrvelCopy/Insights.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Insights {

namespace {

constexpr std::int64_t minutesOfAnHour = 60;

std::string hoursAlone(std::int64_t hours)
{
    return hours == 1 ? localized(KEY("1 hour")) : localized(COUNTED("%lld hours"), hours);
}

std::string minutesAlone(std::int64_t minutes)
{
    return minutes == 1 ? localized(KEY("1 minute")) : localized(COUNTED("%lld minutes"), minutes);
}

}

// TRANSLATORS: a range to choose
std::string_view lastSevenDays() { return constant(KEY("The last 7 days")); }
// TRANSLATORS: a range to choose
std::string_view lastThirtyDays() { return constant(KEY("The last 30 days")); }
// TRANSLATORS: a title in the place of the range, for a new user
std::string_view firstWeek() { return constant(KEY("Your first week")); }
// TRANSLATORS: the title of the chart
std::string_view screenTime() { return constant(KEY("Screen time")); }
// TRANSLATORS: below the chart
std::string_view legend() { return constant(KEY("A dot for each breath. Measured by Orvel while it’s running.")); }
std::string_view legendMonth()
{
    // TRANSLATORS: below the chart
    return constant(KEY("A dot on each day you breathed. Measured by Orvel while it’s running."));
}
// TRANSLATORS: stands while the numbers are being added up
std::string_view adding() { return constant(KEY("Adding up your week…")); }
// TRANSLATORS: spoken while the numbers are being added up
std::string_view addingSpoken() { return constant(KEY("Adding up your week")); }
// TRANSLATORS: in the place of a time: nothing was measured on this day
std::string_view notMeasured() { return constant(KEY("not measured")); }
// TRANSLATORS: a range, inside a spoken sentence
std::string_view rangeWeekSpoken() { return constant(KEY("the last 7 days")); }
// TRANSLATORS: a range, inside a spoken sentence
std::string_view rangeMonthSpoken() { return constant(KEY("the last 30 days")); }

// TRANSLATORS: no blocked app or website was opened or tried
std::string_view nothingReached() { return constant(KEY("Nothing reached for yet.")); }
std::string_view stayedOffWeek()
{
    return constant(KEY("Times you reached for something a Block was keeping quiet, this week."));
}
std::string_view stayedOffMonth()
{
    return constant(KEY("Times you reached for something a Block was keeping quiet, in the last 30 days."));
}

// TRANSLATORS: the label of a number
std::string_view daysBreathed() { return constant(KEY("Days you breathed")); }
// TRANSLATORS: the label of the app or website that was tried most often
std::string_view mostReachedFor() { return constant(KEY("Most reached for")); }

// TRANSLATORS: the title of the moods
std::string_view afterBreath() { return constant(KEY("After a breath")); }
// TRANSLATORS: a mood after a breath
std::string_view calmer() { return constant(KEY("Calmer")); }
// TRANSLATORS: a mood after a breath: as before
std::string_view same() { return constant(KEY("Same")); }
// TRANSLATORS: a mood after a breath
std::string_view restless() { return constant(KEY("Restless")); }

// TRANSLATORS: the title of a few more numbers
std::string_view alsoTitle() { return constant(KEY("Also")); }
// TRANSLATORS: the label of a number
std::string_view endedEarly() { return constant(KEY("Ended early")); }
// TRANSLATORS: the label of a number
std::string_view emergencyExits() { return constant(KEY("Emergency exits used")); }
// TRANSLATORS: the label of a number
std::string_view bypassed() { return constant(KEY("Ultra Hard mode switched off from outside")); }
// TRANSLATORS: below the numbers of early endings and emergency exits
std::string_view alsoNote() { return constant(KEY("Counted, never held against you. Tomorrow’s a new day.")); }

std::string summary(std::string_view range, std::int64_t breaths, std::string_view minutes)
{
    if (breaths == 1)
        // TRANSLATORS: %1$@ such as "The last 7 days", %2$@ such as "3 minutes"
        return localized(KEY("%@ · 1 breath, %@ breathed."), range, minutes);
    // TRANSLATORS: %1$@ such as "The last 7 days", %3$@ such as "38 minutes"
    return localized(COUNTED("%@ · %lld breaths, %@ breathed."), range, breaths, minutes);
}
std::string minutes(std::int64_t minutes)
{
    if (minutes < minutesOfAnHour)
        return minutesAlone(minutes);
    const auto hours = hoursAlone(minutes / minutesOfAnHour);
    if (minutes % minutesOfAnHour == 0)
        return hours;
    // TRANSLATORS: %1$@ such as "2 hours", %2$@ such as "15 minutes"
    return localized(KEY("%@ %@"), hours, minutesAlone(minutes % minutesOfAnHour));
}
std::string soFar(std::int64_t breaths, std::int64_t stayedOff)
{
    if (breaths == 0 && stayedOff == 0)
        return localized(KEY("Nothing yet. Your breaths and the times you stay off show up here."));
    const auto counted = breaths == 1 ? localized(KEY("1 breath")) : localized(COUNTED("%lld breaths"), breaths);
    if (stayedOff == 0)
        // TRANSLATORS: %@ such as "2 breaths"
        return localized(KEY("So far: %@."), counted);
    if (stayedOff == 1)
        // TRANSLATORS: %@ such as "2 breaths"
        return localized(KEY("So far: %@, and you stayed off once."), counted);
    // TRANSLATORS: %@ such as "2 breaths"
    return localized(COUNTED("So far: %@, and you stayed off %lld times."), counted, stayedOff);
}
// TRANSLATORS: %@ a span such as "2 h 5 m"
std::string aboutADay(std::string_view length) { return localized(KEY("About %@ a day"), length); }
std::string firstWeekSoFar(std::string_view text)
{
    return localized(
        // TRANSLATORS: %@ what was counted, such as a span
        KEY("%@ so far. The rest of your first week fills in here, and your first recap arrives on Sunday evening."),
        text);
}
std::string chartSentence(std::string_view range, std::optional<std::string_view> average, std::string_view days)
{
    if (!average)
        // TRANSLATORS: spoken: %1$@ such as "the last 7 days", %2$@ a sentence for each day
        return localized(KEY("Screen time, %@. %@"), range, days);
    // TRANSLATORS: spoken: %1$@ such as "the last 7 days", %2$@ a span, %3$@ a sentence for each day
    return localized(KEY("Screen time, %@, about %@ a day. %@"), range, *average, days);
}
std::string chartDay(std::string_view day, std::string_view time, std::int64_t breaths)
{
    if (breaths == 1)
        // TRANSLATORS: spoken: %1$@ a day, %2$@ a span or "not measured"
        return localized(KEY("%@ %@, 1 breath."), day, time);
    if (breaths == 0)
        // TRANSLATORS: spoken: %1$@ a day, %2$@ a span or "not measured"
        return localized(KEY("%@ %@, no breaths."), day, time);
    // TRANSLATORS: spoken: %1$@ a day, %2$@ a span or "not measured"
    return localized(COUNTED("%@ %@, %lld breaths."), day, time, breaths);
}
std::string stayedOff(std::int64_t times, std::int64_t of)
{
    // TRANSLATORS: of the times that something blocked was opened or tried
    return localized(KEY("You stayed off %lld of %lld times."), times, of);
}
// TRANSLATORS: the days with a breath in a range
std::string daysOf(std::int64_t days, std::int64_t total) { return localized(KEY("%lld of %lld days"), days, total); }
std::string times(std::int64_t count)
{
    // TRANSLATORS: in the place of a number: how often something happened
    return count == 1 ? localized(KEY("once")) : localized(COUNTED("%lld times"), count);
}
// TRANSLATORS: the share of a mood
std::string percent(std::int64_t percent) { return localized(COUNTED("%lld%%"), percent); }
std::string moodsNote(std::int64_t checkIns)
{
    if (checkIns == 1)
        // TRANSLATORS: below the moods: a check-in is the question after a breath
        return localized(KEY("From 1 check-in with a mood."));
    // TRANSLATORS: below the moods: a check-in is the question after a breath
    return localized(COUNTED("From %lld check-ins with a mood."), checkIns);
}

}
