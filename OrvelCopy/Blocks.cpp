#include "OrvelCopy/Blocks.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Blocks {

std::string_view gentle() { return constant(KEY("Gentle")); }
std::string_view firm() { return constant(KEY("Firm")); }
std::string_view firmUltraHard() { return constant(KEY("Firm · Ultra Hard")); }

// TRANSLATORS: %@ a clock time
std::string running(std::string_view until) { return localized(KEY("Running · until %@"), until); }
std::string apps(std::int64_t count)
{
    return count == 1 ? localized(KEY("1 app")) : localized(COUNTED("%lld apps"), count);
}
std::string blocksSummary(std::int64_t apps, std::int64_t websites, bool readyMade)
{
    // TRANSLATORS: goes on with "and 2 websites."
    const auto first = apps == 1 ? localized(KEY("Blocks 1 app")) : localized(COUNTED("Blocks %lld apps"), apps);
    const auto second = websites == 1 ? localized(KEY("1 website")) : localized(COUNTED("%lld websites"), websites);
    // TRANSLATORS: %1$@ such as "Blocks 3 apps", %2$@ such as "2 websites"
    const auto sentence = localized(KEY("%@ and %@."), first, second);
    // TRANSLATORS: %@ a whole sentence
    return readyMade ? localized(KEY("%@ Ready-made Lists add new apps you install."), sentence) : sentence;
}
std::string scheduleWithLists(std::string_view days, std::string_view hours, std::string_view lists)
{
    // TRANSLATORS: %1$@ days, %2$@ hours, %3$@ the names of Lists
    return localized(KEY("%@ · %@ · %@"), days, hours, lists);
}
std::string rowSentence(std::string_view name, std::string_view mode, std::string_view schedule, bool isOn)
{
    // TRANSLATORS: spoken: %1$@ the name of a Block, %2$@ its level, %3$@ its schedule
    return isOn ? localized(KEY("%@, %@, %@"), name, mode, schedule)
                : localized(KEY("%@, %@, %@, off"), name, mode, schedule);
}

}
