#include "OrvelCopy/Shortcuts.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Shortcuts {

std::string firmRefusal(std::string_view name, std::string_view until, Surface from)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return from == Surface::controlCenter
        ? localized(KEY("%@ is Firm until %@, so Control Center can’t turn it off. Ending early takes a 3-minute "
                        "breath in Orvel."),
            name, until)
        : localized(KEY("%@ is Firm until %@, so a shortcut can’t turn it off. Ending early takes a 3-minute breath "
                        "in Orvel."),
            name, until);
}
std::string ultraHardRefusal(std::string_view name, std::string_view until, Surface from)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return from == Surface::controlCenter
        ? localized(KEY("%@ is in Ultra Hard mode until %@, so Control Center can’t turn it off. Nothing ends it "
                        "early."),
            name, until)
        : localized(KEY("%@ is in Ultra Hard mode until %@, so a shortcut can’t turn it off. Nothing ends it early."),
            name, until);
}

}
