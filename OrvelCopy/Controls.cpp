#include "OrvelCopy/Controls.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Controls {

std::string_view breatheNow() { return constant(KEY("Breathe now")); }
std::string_view focusNow() { return constant(KEY("Focus now")); }
std::string_view breatheDescription()
{
    return constant(KEY("Opens a breath in Orvel, from Control Center or the menu bar."));
}
std::string_view focusDescription()
{
    return constant(KEY("On while a Focus runs. Switch it on to start one; switching it off ends a Gentle Focus."));
}
// TRANSLATORS: spoken: no Focus runs
std::string_view focusOffSpoken() { return constant(KEY("off")); }

// TRANSLATORS: no Focus runs; one would take so many minutes
std::string focusOff(std::int64_t minutes) { return localized(COUNTED("Off · %lld min"), minutes); }
// TRANSLATORS: spoken: a Focus runs
std::string focusOnSpoken(std::int64_t minutes) { return localized(COUNTED("on, %lld minutes left"), minutes); }

}
