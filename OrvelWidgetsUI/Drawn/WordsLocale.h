#pragma once

#include "OrvelPlatform/Base/Locale.h"

namespace orvel {

/// The language that the words of a picture are in. Capitals follow it: an "i" has its dot in Turkish only.
struct WordsLocaleKey {
    using Value = Locale;
    static Value defaultValue() { return Locale::english(); }
};

}
