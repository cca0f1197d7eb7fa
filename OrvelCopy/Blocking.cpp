#include "OrvelCopy/Blocking.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Blocking {

std::string resting(std::string_view name, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of an app or website, %2$@ a clock time
    return localized(KEY("%@ is resting until %@."), name, until);
}
std::string restingDetail(std::string_view until)
{
    // TRANSLATORS: "it" is the app or website that is blocked; %@ a clock time
    return localized(KEY("It wakes up at %@, or after a breath in the other window."), until);
}
std::string begun(std::string_view block, std::string_view app, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ the name of the app in use, %3$@ a clock time
    return localized(KEY("%@ has begun. %@ is resting until %@."), block, app, until);
}
std::string begunDetail(std::string_view app)
{
    // TRANSLATORS: %@ the name of the app in use as its Block began
    return localized(KEY("Nothing interrupts what you’re doing. Bring %@ forward and the breath is ready."), app);
}
std::string quitRefused(std::string_view name, bool ultraHard, std::string_view until)
{
    if (ultraHard)
        // TRANSLATORS: Orvel was asked to quit; %1$@ the name of a Block, %2$@ a clock time
        return localized(KEY("%@ is in Ultra Hard mode until %@. Orvel has to keep running to block."), name, until);
    // TRANSLATORS: Orvel was asked to quit; %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ is Firm until %@. Orvel has to keep running to block."), name, until);
}

}
