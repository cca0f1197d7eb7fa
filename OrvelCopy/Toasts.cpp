#include "OrvelCopy/Toasts.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Toasts {

// TRANSLATORS: %@ the name of a Block
std::string endedEarly(std::string_view name) { return localized(KEY("%@ ended. That’s okay."), name); }
std::string emergencyExit(std::string_view name, std::optional<std::string_view> backAt)
{
    if (backAt)
        // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
        return localized(KEY("%@ ended. That’s okay. It’ll be back %@."), name, *backAt);
    return endedEarly(name);
}
std::string blockUpdated(std::string_view name, std::optional<std::string_view> until)
{
    if (until)
        // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
        return localized(KEY("%@ updated. Active until %@."), name, *until);
    // TRANSLATORS: %@ the name of a Block
    return localized(KEY("%@ updated."), name);
}
// TRANSLATORS: how often the user resisted today
std::string stayedOff(std::int64_t count) { return localized(COUNTED("Nice. That’s %lld today."), count); }

}
