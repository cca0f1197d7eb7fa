#pragma once

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Detail {

/// The keys of the program, from the last that was entered to the first.
const ListedKey* firstListedKey();

}
