#include "OrvelCopy/Pause.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Pause {

// TRANSLATORS: before something blocked opens
std::string_view breatheFirst() { return constant(KEY("Breathe first")); }
// TRANSLATORS: the words on a button: takes no breath
std::string_view notRightNow() { return constant(KEY("Not right now")); }
// TRANSLATORS: the label of a choice: how long a breath takes
std::string_view lengthGroup() { return constant(KEY("Length")); }
// TRANSLATORS: the name of the length of 1 minute
std::string_view reset() { return constant(KEY("Reset")); }
// TRANSLATORS: the name of the length of 3 minutes
std::string_view settle() { return constant(KEY("Settle")); }
// TRANSLATORS: the name of the length of 5 minutes
std::string_view deep() { return constant(KEY("Deep")); }
// TRANSLATORS: the words on a button: begins a breath
std::string_view begin() { return constant(KEY("Begin")); }
// TRANSLATORS: the words on a button: what was blocked stays closed
std::string_view stayOff() { return constant(KEY("Stay off")); }
// TRANSLATORS: the name of a key
std::string_view escKey() { return constant(KEY("esc")); }

// TRANSLATORS: during a breath: breathe in
std::string_view cueIn() { return constant(KEY("In")); }
// TRANSLATORS: during a breath: hold it
std::string_view cueHold() { return constant(KEY("Hold")); }
// TRANSLATORS: during a breath: breathe out
std::string_view cueOut() { return constant(KEY("Out")); }
// TRANSLATORS: during a breath: it is paused
std::string_view cuePaused() { return constant(KEY("Paused")); }
std::string_view captionsOn() { return constant(KEY("Captions on")); }
std::string_view captionsOff() { return constant(KEY("Captions off")); }
std::string_view soundOn() { return constant(KEY("Sound on")); }
std::string_view soundOff() { return constant(KEY("Sound off")); }
// TRANSLATORS: what the keys Space and esc do while a breath is paused
std::string_view pausedStatus() { return constant(KEY("Space resumes · esc ends the breath")); }

// TRANSLATORS: the question after a breath
std::string_view howDoYouFeel() { return constant(KEY("How do you feel?")); }
// TRANSLATORS: spoken: the answers to "How do you feel?"; none is needed
std::string_view moodGroup() { return constant(KEY("Mood, optional")); }
// TRANSLATORS: an answer to "How do you feel?"
std::string_view calmer() { return constant(KEY("Calmer")); }
// TRANSLATORS: an answer to "How do you feel?"
std::string_view same() { return constant(KEY("Same")); }
// TRANSLATORS: an answer to "How do you feel?"
std::string_view restless() { return constant(KEY("Restless")); }
// TRANSLATORS: the words on a button
std::string_view breatheAgain() { return constant(KEY("Breathe again")); }

std::string_view roomNoAccessibility()
{
    // TRANSLATORS: the path as in the settings of Orvel
    return constant(KEY("Orvel can’t follow windows without Accessibility permission, so the breath uses this display. "
                        "You can turn it on in Orvel › Settings › Blocking."));
}

std::string blocked(std::string_view name, std::string_view until, std::string_view by)
{
    // TRANSLATORS: %1$@ the name of an app or website, %2$@ a clock time, %3$@ the name of a Block
    return localized(KEY("%@ is blocked until %@ by %@."), name, until, by);
}
std::string firmContext(std::string_view block, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ ends at %@. A breath can still help."), block, until);
}
std::string notBlocked(std::string_view name)
{
    // TRANSLATORS: %@ the name of an app or website
    return localized(KEY("%@ isn’t blocked any more. The breath is still here if you want it."), name);
}
std::string arrival(std::string_view context, std::string_view title)
{
    // TRANSLATORS: spoken: %1$@ a whole sentence, %2$@ a title such as "Breathe first"
    return localized(KEY("%@ %@."), context, title);
}
std::string tileLabel(std::int64_t minutes, std::string_view name, std::int64_t position, std::int64_t of)
{
    if (minutes == 1)
        // TRANSLATORS: spoken: %1$@ the name of a length, %2$lld which of %3$lld lengths it is
        return localized(KEY("1 minute, %@, %lld of %lld"), name, position, of);
    // TRANSLATORS: spoken: %2$@ the name of a length, %3$lld which of %4$lld lengths it is
    return localized(KEY("%lld minutes, %@, %lld of %lld"), minutes, name, position, of);
}
std::string status(std::string_view captions, std::string_view sound)
{
    // TRANSLATORS: %1$@ such as "Captions on", %2$@ such as "Sound off"
    return localized(KEY("%@ · %@ · esc ends the breath"), captions, sound);
}
std::string playerLabel(std::int64_t minutes, std::int64_t percent)
{
    if (minutes == 1)
        // TRANSLATORS: spoken: %lld how much is done
        return localized(COUNTED("Calm breath, 1 minute, %lld%% done"), percent);
    // TRANSLATORS: spoken: %2$lld how much is done
    return localized(KEY("Calm breath, %lld minutes, %lld%% done"), minutes, percent);
}
// TRANSLATORS: %@ the name of an app or website; a choice such as "5 min" follows
std::string openFor(std::string_view name) { return localized(KEY("Open %@ for"), name); }
// TRANSLATORS: a choice of so many minutes
std::string openLength(std::int64_t minutes) { return localized(COUNTED("%lld min"), minutes); }
std::string tileLength(std::int64_t minutes) { return openLength(minutes); }
std::string openLabel(std::string_view name, std::int64_t minutes)
{
    // TRANSLATORS: %1$@ the name of an app or website
    return localized(COUNTED("Open %@ for %lld minutes"), name, minutes);
}
std::string endsAt(std::string_view block, std::string_view time)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ ends at %@."), block, time);
}
std::string endsAtUltraHard(std::string_view block, std::string_view time)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ ends at %@. Ultra Hard mode is on."), block, time);
}
std::string endedEarly(std::string_view name)
{
    // TRANSLATORS: %@ the name of an app or website
    return localized(KEY("You ended the breath early, so %@ stays closed for now."), name);
}
// TRANSLATORS: the minutes for which something was open are over
std::string endedTitle(std::int64_t minutes) { return localized(COUNTED("That’s your %lld minutes."), minutes); }
std::string restsAgain(std::string_view name, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of an app or website, %2$@ a clock time
    return localized(KEY("%@ rests again until %@."), name, until);
}
std::string roomSmallWindow(std::string_view app)
{
    return localized(
        // TRANSLATORS: %@ the name of an app
        KEY("%@’s window is too small to hold the breath, so it’s here instead. The menu bar and the Dock stay yours."),
        app);
}
std::string roomFullScreen(std::string_view app)
{
    return localized(
        // TRANSLATORS: %@ the name of an app
        KEY("%@ is full screen, so the breath fills its Space. Swipe to another Space whenever you like."), app);
}

}
