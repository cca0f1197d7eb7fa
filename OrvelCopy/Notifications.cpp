#include "OrvelCopy/Notifications.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Notifications {

// TRANSLATORS: the title of a notification: an app closes again in a minute
std::string_view oneMinuteTitle() { return constant(KEY("1 minute left")); }
// TRANSLATORS: the title of a notification
std::string_view relaunchTitle() { return constant(KEY("Orvel is running again")); }
// TRANSLATORS: the title of a notification; "Login Items" as in the settings of the system
std::string_view switchedOffTitle() { return constant(KEY("Orvel was switched off in Login Items")); }
// TRANSLATORS: the title of a notification
std::string_view focusDoneTitle() { return constant(KEY("Focus is done")); }
// TRANSLATORS: the title of a notification
std::string_view recapTitle() { return constant(KEY("Your week with Orvel")); }
// TRANSLATORS: the title of a notification
std::string_view breakTitle() { return constant(KEY("Time for a breath?")); }
// TRANSLATORS: the text of a notification
std::string_view breakBody() { return constant(KEY("You’ve been at it for 90 minutes. A 1-minute breath is ready.")); }

std::string oneMinuteBody(std::string_view name, std::string_view closesAt)
{
    // TRANSLATORS: %1$@ the name of an app or website, %2$@ a clock time
    return localized(KEY("%@ closes at %@. Finish your thought."), name, closesAt);
}
std::string relaunchBody(std::string_view name, bool ultraHard, std::string_view until)
{
    if (ultraHard)
        return localized(
            // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
            KEY("%@ is in Ultra Hard mode until %@, so Orvel started itself again after it was quit."), name, until);
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ is Firm until %@, so Orvel started itself again after it was quit."), name, until);
}
std::string switchedOffBody(std::string_view name)
{
    return localized(
        // TRANSLATORS: %@ the name of a Block; "Login Items" as in the settings of the system
        KEY("%@ stays in Ultra Hard mode while Orvel runs. You can turn Orvel back on in Login Items."), name);
}
std::string focusDoneBody(std::int64_t minutes, std::optional<std::string_view> lists)
{
    if (lists)
        // TRANSLATORS: %2$@ the names of Lists, one or several
        return localized(COUNTED("%lld minutes, start to finish. %@ are open again."), minutes, *lists);
    // TRANSLATORS: the text of a notification: a Focus is done
    return localized(COUNTED("%lld minutes, start to finish."), minutes);
}
std::string recapBody(std::int64_t breaths, std::int64_t minutes, std::int64_t stayedOff)
{
    return localized(
        // TRANSLATORS: the numbers of a week
        KEY("%lld breaths, %lld minutes breathed, and you stayed off %lld times."), breaths, minutes, stayedOff);
}
std::string uncoveredTitle(std::string_view browser)
{
    // TRANSLATORS: %@ the name of a browser
    return localized(KEY("Websites aren’t blocked in %@ yet"), browser);
}
std::string uncoveredBody(std::string_view covering, std::string_view browser)
{
    // TRANSLATORS: %1$@ what covers apps and Safari, such as the name of a Block, %2$@ the name of a browser
    return localized(KEY("%@ covers your apps and Safari. Orvel can’t see %@’s tabs."), covering, browser);
}
// TRANSLATORS: %@ the name of a browser
std::string fixTitle(std::string_view browser) { return localized(KEY("Orvel can’t see %@’s tabs"), browser); }
std::string fixBody(std::string_view browser)
{
    return localized(
        // TRANSLATORS: %@ the name of a browser; the path as in the settings of Orvel
        KEY("Websites in %@ aren’t blocked until you allow it. Open Orvel › Settings › Browsers."), browser);
}

}
