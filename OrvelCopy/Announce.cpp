#include "OrvelCopy/Announce.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Announce {

// TRANSLATORS: spoken as a breath begins
std::string_view inhale() { return constant(KEY("Breathe in")); }
// TRANSLATORS: spoken in a breath: neither in nor out
std::string_view hold() { return constant(KEY("Hold")); }
// TRANSLATORS: spoken in a breath
std::string_view exhale() { return constant(KEY("Breathe out")); }

}
