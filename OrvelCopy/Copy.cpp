#include "OrvelCopy/Copy.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy {

std::string_view focusName() { return constant(KEY("Focus")); }

}
