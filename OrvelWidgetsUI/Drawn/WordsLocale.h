#pragma once

#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// The language that the words of a picture are in. Capitals follow it: an "i" has its dot in Turkish only.
struct WordsLocaleKey {
    using Value = Locale;
    static Value defaultValue() { return Locale::english(); }
};

/// What tells the text system so: its letters' forms follow the language too.
inline Environment withTextLanguage(const Environment& changes, const Environment& outside)
{
    return changes.with<TextLanguageKey>(outside.get<WordsLocaleKey>().identifier());
}

}
