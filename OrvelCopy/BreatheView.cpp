#include "OrvelCopy/BreatheView.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::BreatheView {

// TRANSLATORS: a style of breath
std::string_view calm() { return constant(KEY("Calm")); }
// TRANSLATORS: a style of breath
std::string_view reset() { return constant(KEY("Reset")); }
// TRANSLATORS: a style of breath
std::string_view ground() { return constant(KEY("Ground")); }
std::string_view calmDetail()
{
    // TRANSLATORS: the style Calm: seconds in, seconds out
    return constant(KEY("Slow and even. In for four, out for six, easing slower as you settle."));
}
std::string_view resetDetail()
{
    // TRANSLATORS: the style Reset
    return constant(KEY("Two breaths in through the nose, one long breath out. The quickest way to let an urge pass."));
}
std::string_view groundDetail()
{
    // TRANSLATORS: the style Ground: seconds in, held, out, held
    return constant(KEY("In for four, hold for two, out for six, hold for two. Steady and settling."));
}

// TRANSLATORS: the label of a choice: how long a breath takes
std::string_view length() { return constant(KEY("Length")); }
// TRANSLATORS: the name of the length of 1 minute
std::string_view lengthOne() { return constant(KEY("Reset")); }
// TRANSLATORS: the name of the length of 3 minutes
std::string_view lengthThree() { return constant(KEY("Settle")); }
// TRANSLATORS: the name of the length of 5 minutes
std::string_view lengthFive() { return constant(KEY("Deep")); }

// TRANSLATORS: the words on a button: begins a breath
std::string_view begin() { return constant(KEY("Begin")); }
// TRANSLATORS: what the button that begins a breath does
std::string_view beginHint() { return constant(KEY("Opens the breath in its own window.")); }
std::string_view opensInWindow()
{
    return constant(KEY("Opens in its own window. Make it full screen, or shrink it to a floating orb."));
}

// TRANSLATORS: the label of a choice: the voice that guides a breath
std::string_view voice() { return constant(KEY("Voice")); }
// TRANSLATORS: a choice: no voice
std::string_view voiceOff() { return constant(KEY("Off")); }
// TRANSLATORS: a choice
std::string_view voiceLower() { return constant(KEY("Lower voice")); }
// TRANSLATORS: a choice
std::string_view voiceHigher() { return constant(KEY("Higher voice")); }
// TRANSLATORS: the label of a choice: the sound behind a breath
std::string_view sound() { return constant(KEY("Sound")); }
// TRANSLATORS: a choice: no sound
std::string_view soundNone() { return constant(KEY("None")); }
// TRANSLATORS: a choice of sound
std::string_view soundRain() { return constant(KEY("Soft rain")); }
// TRANSLATORS: a choice of sound
std::string_view soundOcean() { return constant(KEY("Ocean")); }
// TRANSLATORS: a choice of sound: a quiet room
std::string_view soundRoom() { return constant(KEY("Room tone")); }
// TRANSLATORS: a switch: the words of a breath can be read
std::string_view captions() { return constant(KEY("Captions")); }
std::string_view captionsDetail()
{
    return constant(KEY("Captions stay on whenever no headphones are connected, so a breath never needs sound."));
}

// TRANSLATORS: a switch: a reminder to take a breath
std::string_view breatheBreak() { return constant(KEY("Breathe break")); }
std::string_view breatheBreakDetail()
{
    return constant(KEY("After 90 minutes of steady work, a quiet notification offers a 1-minute breath. It waits "
                        "while an app is full screen. Off unless you turn it on."));
}

// TRANSLATORS: stands above the breaths of late
std::string_view recent() { return constant(KEY("Recent")); }
std::string_view noRecent() { return constant(KEY("Your breaths show up here, wherever you start them.")); }
std::string_view yesterday() { return constant(KEY("Yesterday")); }
// TRANSLATORS: where a breath was started: the button Breathe now
std::string_view fromBreatheNow() { return constant(KEY("Breathe now")); }
// TRANSLATORS: where a breath was started: the user reached for something blocked
std::string_view fromBlocked() { return constant(KEY("After a reach")); }
// TRANSLATORS: where a breath was started: the first run of Orvel
std::string_view fromFirstRun() { return constant(KEY("First run")); }
// TRANSLATORS: where a breath was started
std::string_view fromArrive() { return constant(KEY("Before a Focus")); }
// TRANSLATORS: where a breath was started
std::string_view fromEndEarly() { return constant(KEY("Before ending early")); }
// TRANSLATORS: where a breath was started
std::string_view fromEmergency() { return constant(KEY("Emergency exit")); }
// TRANSLATORS: where a breath was started
std::string_view fromWidget() { return constant(KEY("Widget")); }

// TRANSLATORS: the space is a no-break space
std::string minutes(std::int64_t minutes) { return localized(COUNTED("%lld\u00A0min"), minutes); }
std::string minutesSpoken(std::int64_t minutes, std::string_view name)
{
    if (minutes == 1)
        // TRANSLATORS: spoken: %@ the name of a length
        return localized(KEY("1 minute, %@"), name);
    // TRANSLATORS: spoken: %2$@ the name of a length
    return localized(COUNTED("%lld minutes, %@"), minutes, name);
}
std::string session(std::int64_t minutes, std::string_view style)
{
    // TRANSLATORS: %2$@ a style of breath; the space before "min" is a no-break space
    return localized(COUNTED("%lld\u00A0min · %@"), minutes, style);
}
// TRANSLATORS: %@ where a breath was started, such as "Widget"
std::string from(std::string_view source) { return localized(KEY("From %@"), source); }

}
