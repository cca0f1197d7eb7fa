// Compiled once for each fault, which must be refused with its message, and once as it should be.

#include "OrvelCopy/Lookup/Lookup.h"

using namespace orvel::Copy;

[[maybe_unused]] static std::string text([[maybe_unused]] std::string_view name, [[maybe_unused]] int count)
{
#if defined(CASE_sound)
    return std::string(constant(KEY("100% yours"))) + localized(KEY("%@ is %lld%% done with %lld"), name, count, 2L)
        + localized(COUNTED("%@ has %lld apps"), name, count) + localized(KEY("No apps"))
        + inLanguage(std::nullopt, [] { return localized(KEY("Calm")); });
#elif defined(CASE_tooFewArguments)
    return localized(KEY("%@ until %@"), name);
#elif defined(CASE_otherOrder)
    return localized(COUNTED("%lld min · %@"), name, count);
#elif defined(CASE_constantWithPlaceholder)
    return std::string(constant(KEY("until %@")));
#elif defined(CASE_lonePercentSign)
    return localized(KEY("%@ is 100% yours"), name);
#elif defined(CASE_countNotCounted)
    return localized(KEY("%lld apps"), count);
#elif defined(CASE_countedTwice)
    return localized(COUNTED("%lld of %lld"), count, count);
#elif defined(CASE_emptyKey)
    return localized(KEY(""));
#elif defined(CASE_unfinishedWork)
    struct Task {
        bool await_ready();
    };
    inLanguage(std::nullopt, [] { return Task {}; });
    return {};
#endif
}
