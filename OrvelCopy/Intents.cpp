#include "OrvelCopy/Intents.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Intents {

// TRANSLATORS: the title of a switch that starts and ends a Focus
std::string_view focusNow() { return constant(KEY("Focus Now")); }
// TRANSLATORS: the style of a breath, such as Calm
std::string_view style() { return constant(KEY("Style")); }
// TRANSLATORS: the length of a breath
std::string_view minutes() { return constant(KEY("Minutes")); }

}
