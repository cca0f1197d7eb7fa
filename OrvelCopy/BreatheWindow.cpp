#include "OrvelCopy/BreatheWindow.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::BreatheWindow {

// TRANSLATORS: the title of a window
std::string_view windowTitle() { return constant(KEY("Breathe")); }
std::string_view pickerTitle() { return constant(KEY("Take a breath")); }
std::string_view pickerDetail() { return constant(KEY("Wherever you are, a minute is enough.")); }
// TRANSLATORS: the label of a choice: the style of a breath
std::string_view styleGroup() { return constant(KEY("Style")); }
// TRANSLATORS: a style of breath
std::string_view calm() { return constant(KEY("Calm")); }
// TRANSLATORS: a style of breath
std::string_view reset() { return constant(KEY("Reset")); }
// TRANSLATORS: a style of breath
std::string_view ground() { return constant(KEY("Ground")); }
// TRANSLATORS: the words on a button
std::string_view change() { return constant(KEY("Change")); }
// TRANSLATORS: spoken: a button
std::string_view changeLabel() { return constant(KEY("Change the breath’s sound and captions")); }

// TRANSLATORS: spoken: a button
std::string_view pause() { return constant(KEY("Pause the breath")); }
// TRANSLATORS: spoken: a button
std::string_view resume() { return constant(KEY("Resume the breath")); }
// TRANSLATORS: a switch
std::string_view captionsToggle() { return constant(KEY("Captions")); }
// TRANSLATORS: spoken: a button: the window becomes a small orb above all others
std::string_view shrink() { return constant(KEY("Shrink to a floating orb")); }

// TRANSLATORS: the breath is over
std::string_view doneTitle() { return constant(KEY("That’s one breath.")); }
std::string_view endedEarlyTitle() { return constant(KEY("Every breath counts.")); }
std::string_view endedEarlyDetail() { return constant(KEY("The minutes you breathed still count.")); }
// TRANSLATORS: the words on a button
std::string_view done() { return constant(KEY("Done")); }
// TRANSLATORS: the words on a button: another minute of breathing
std::string_view anotherMinute() { return constant(KEY("Another minute")); }

// TRANSLATORS: on the floating orb: the breath is over
std::string_view floatingDone() { return constant(KEY("Done")); }
// TRANSLATORS: spoken: the window as a small orb while no breath runs
std::string_view floatingIdleLabel() { return constant(KEY("Breathe, floating orb")); }
// TRANSLATORS: spoken: a button on the floating orb
std::string_view expand() { return constant(KEY("Back to the Breathe window")); }
// TRANSLATORS: spoken: a button
std::string_view end() { return constant(KEY("End the breath")); }
// TRANSLATORS: the words on a button
std::string_view close() { return constant(KEY("Close")); }

// TRANSLATORS: %@ a span such as "2:35"
std::string timeLeft(std::string_view time) { return localized(KEY("%@ left"), time); }
std::string settingsLine(std::string_view captions, std::string_view sound)
{
    // TRANSLATORS: %1$@ such as "Captions on", %2$@ the sound; a button stands behind the last dot
    return localized(KEY("%@ · %@ ·"), captions, sound);
}
std::string playerStatus(std::string_view left, std::string_view captions, std::string_view sound)
{
    // TRANSLATORS: %1$@ a span such as "2:35 left", %2$@ such as "Captions on", %3$@ the sound
    return localized(KEY("%@ · %@ · %@ · esc ends the breath"), left, captions, sound);
}
std::string pausedStatus(std::string_view left)
{
    // TRANSLATORS: %@ a span such as "2:35 left"
    return localized(KEY("%@ · Space resumes · esc ends the breath"), left);
}
std::string fullScreenStatus(std::string_view left)
{
    // TRANSLATORS: %@ a span such as "2:35 left"
    return localized(KEY("%@ · esc ends the breath · ⌃⌘F leaves full screen"), left);
}
std::string playerLabel(std::string_view style, std::int64_t minutes, std::int64_t percent)
{
    if (minutes == 1)
        // TRANSLATORS: spoken: %1$@ a style of breath, %2$lld how much is done
        return localized(COUNTED("%@ breath, 1 minute, %lld%% done"), style, percent);
    // TRANSLATORS: spoken: %1$@ a style of breath, %3$lld how much is done
    return localized(KEY("%@ breath, %lld minutes, %lld%% done"), style, minutes, percent);
}
std::string breathsToday(std::int64_t count)
{
    if (count == 1)
        // TRANSLATORS: after the first breath of today
        return localized(KEY("Nice. That’s your first today."));
    // TRANSLATORS: after the second breath of today, and each later one
    return localized(COUNTED("Nice. That’s %lld today."), count);
}
// TRANSLATORS: %1$@ a cue such as "Breathe in", %2$@ a span such as "2:35"
std::string floatingLine(std::string_view cue, std::string_view left) { return localized(KEY("%@ · %@"), cue, left); }
std::string floatingReady(std::string_view style, std::int64_t minutes)
{
    // TRANSLATORS: %1$@ a style of breath
    return localized(COUNTED("%@ · %lld min"), style, minutes);
}
std::string floatingLabel(std::string_view cue, std::string_view left)
{
    // TRANSLATORS: spoken: %1$@ a cue such as "Breathe in", %2$@ a span such as "2:35"
    return localized(KEY("Breathing, floating orb. %@, %@ left"), cue, left);
}

}
