#include "OrvelCopy/FirstRun.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::FirstRun {

// TRANSLATORS: spoken: the name of the window
std::string_view windowLabel() { return constant(KEY("Welcome to Orvel")); }

// TRANSLATORS: a phase of the first run
std::string_view phaseBreathe() { return constant(KEY("Breathe")); }
// TRANSLATORS: a phase of the first run
std::string_view phaseThisMac() { return constant(KEY("This Mac")); }
// TRANSLATORS: a phase of the first run
std::string_view phaseFirstBlock() { return constant(KEY("First Block")); }
// TRANSLATORS: a phase of the first run
std::string_view phaseAllSet() { return constant(KEY("All set")); }

// TRANSLATORS: the words on a button: begins the breath
std::string_view begin() { return constant(KEY("Begin")); }
// TRANSLATORS: the words on a button: skips the breath
std::string_view skip() { return constant(KEY("Skip")); }
// TRANSLATORS: the words on a button
std::string_view continueButton() { return constant(KEY("Continue")); }
// TRANSLATORS: the words on a button
std::string_view notNow() { return constant(KEY("Not now")); }
// TRANSLATORS: the words on a button
std::string_view openSystemSettings() { return constant(KEY("Open System Settings")); }
// TRANSLATORS: the words on a button
std::string_view turnOn() { return constant(KEY("Turn on")); }
// TRANSLATORS: the words on a button
std::string_view allowNotifications() { return constant(KEY("Allow notifications")); }
// TRANSLATORS: the words on a button
std::string_view saveBlock() { return constant(KEY("Save Block")); }
// TRANSLATORS: the words on a button
std::string_view setUpLater() { return constant(KEY("Set up later")); }
// TRANSLATORS: the words on a button
std::string_view openOrvel() { return constant(KEY("Open Orvel")); }
// TRANSLATORS: the words on a button
std::string_view done() { return constant(KEY("Done")); }

std::string_view breathTitle() { return constant(KEY("Before anything, one breath.")); }
std::string_view breathDetail()
{
    return constant(
        KEY("This is what Orvel offers whenever you reach for something you’ve set aside. One minute, right now."));
}
// TRANSLATORS: esc is the name of a key
std::string_view breathingHint() { return constant(KEY("esc ends the breath")); }

// TRANSLATORS: Nice: after the first breath
std::string_view setupTitle() { return constant(KEY("Nice. Now, this Mac.")); }
std::string_view setupTitleSkipped() { return constant(KEY("Now, this Mac.")); }
std::string_view setupDetail()
{
    return constant(KEY("Orvel needs a few things from macOS. Each one is explained before Apple asks, and each can be "
                        "changed later."));
}
// TRANSLATORS: spoken: the name of the list of what Orvel needs
std::string_view needsLabel() { return constant(KEY("What Orvel needs")); }
// TRANSLATORS: one of what Orvel needs: to know where windows are
std::string_view needWindows() { return constant(KEY("Follow windows")); }
// TRANSLATORS: what following windows is for
std::string_view needWindowsDetail() { return constant(KEY("So the breath covers only the window you reached for.")); }
// TRANSLATORS: one of what Orvel needs
std::string_view needWebsites() { return constant(KEY("Websites")); }
std::string_view needWebsitesDetail()
{
    // TRANSLATORS: how websites are blocked
    return constant(KEY("Browser by browser. Only the address of the tab in front."));
}
// TRANSLATORS: one of what Orvel needs
std::string_view needLogin() { return constant(KEY("Open at login")); }
std::string_view needLoginDetail() { return constant(KEY("Orvel has to be running to block.")); }
// TRANSLATORS: one of what Orvel needs
std::string_view needNotifications() { return constant(KEY("Notifications")); }
// TRANSLATORS: what notifications are for
std::string_view needNotificationsDetail() { return constant(KEY("A one-minute warning before an app closes again.")); }
// TRANSLATORS: a badge beside one of what Orvel needs
std::string_view recommended() { return constant(KEY("Recommended")); }
// TRANSLATORS: a badge beside one of what Orvel needs
std::string_view optional() { return constant(KEY("Optional")); }
// TRANSLATORS: a badge beside one of what Orvel needs
std::string_view needed() { return constant(KEY("Needed")); }
// TRANSLATORS: a badge beside what Orvel has already: it is on
std::string_view alreadyOn() { return constant(KEY("On")); }
std::string_view setupNote()
{
    return constant(KEY("Orvel doesn’t use Screen Time on a Mac. It measures time itself, only while it’s running."));
}

std::string_view accessTitle() { return constant(KEY("Let Orvel follow windows")); }
std::string_view accessBody()
{
    return constant(KEY("So the breath sits over just the window you reached for, and moves with it. Everything else "
                        "on your Mac keeps working."));
}
std::string_view accessPrivacy()
{
    return constant(KEY("Orvel reads where windows are, never what’s in them. macOS will ask next."));
}
std::string_view accessWithout()
{
    // TRANSLATORS: it: that Orvel may follow windows
    return constant(KEY("Without it, a blocked app gets the full-display room instead. Blocking still works."));
}
std::string_view waitTitle() { return constant(KEY("Turn on Orvel in System Settings")); }
std::string_view waitBody()
{
    // TRANSLATORS: where the switch is in System Settings
    return constant(KEY("Privacy & Security › Accessibility. Orvel notices by itself and carries on here."));
}
std::string_view waiting() { return constant(KEY("Waiting for System Settings…")); }
// TRANSLATORS: where the switch is in System Settings
std::string_view waitPane() { return constant(KEY("Privacy & Security › Accessibility")); }
// TRANSLATORS: the name of the app in a picture of System Settings
std::string_view orvel() { return constant(KEY("Orvel")); }

std::string_view browsersTitle() { return constant(KEY("Block websites too")); }
std::string_view browsersDetail()
{
    return constant(KEY("In each browser you allow, Orvel checks the address of the tab in front. It never reads "
                        "pages, history or passwords. macOS asks once per browser."));
}
// TRANSLATORS: spoken: the name of the list of browsers
std::string_view browsersLabel() { return constant(KEY("Browsers on this Mac")); }
// TRANSLATORS: the state of a browser: websites are blocked in it
std::string_view covered() { return constant(KEY("Covered")); }
// TRANSLATORS: the words on a button beside a browser
std::string_view allow() { return constant(KEY("Allow…")); }
// TRANSLATORS: the state of a browser
std::string_view asking() { return constant(KEY("macOS is asking…")); }
std::string_view deniedDetail()
{
    // TRANSLATORS: the state of a browser
    return constant(KEY("Not allowed. Turn it on in System Settings › Privacy & Security › Automation."));
}
// TRANSLATORS: the state of a browser: websites are not blocked in it
std::string_view notCoveredYet() { return constant(KEY("Not covered yet")); }
std::string_view noBrowsers()
{
    return constant(KEY("No browser Orvel knows is on this Mac yet. Settings › Browsers lists them once they are."));
}

std::string_view loginTitle() { return constant(KEY("Open Orvel at login")); }
std::string_view loginBody()
{
    return constant(
        KEY("Orvel has to be running to block. It starts quietly with your Mac and waits in the menu bar."));
}
std::string_view loginNote()
{
    // TRANSLATORS: it: opening at login
    return constant(KEY("macOS shows a short notice that Orvel was added. Without it, Blocks pause after a restart "
                        "until you open Orvel."));
}
// TRANSLATORS: the name of a list in a picture of System Settings
std::string_view loginItems() { return constant(KEY("Open at Login")); }
// TRANSLATORS: the kind of an entry in a picture of System Settings
std::string_view application() { return constant(KEY("Application")); }

std::string_view notifyTitle() { return constant(KEY("One-minute warnings")); }
std::string_view notifyBody()
{
    return constant(KEY("A minute before an app you opened closes again, and when Focus is done. A weekly recap on "
                        "Sundays, if you want it. Nothing else."));
}
std::string_view notifyNote()
{
    // TRANSLATORS: them: notifications
    return constant(KEY("Without them, the countdown still shows beside the orb in the menu bar."));
}
std::string_view notifyDenied()
{
    return constant(KEY("Notifications are off for Orvel in System Settings. You can turn them on there."));
}
// TRANSLATORS: a sample of a notification
std::string_view sampleMinuteBody() { return constant(KEY("Slack closes at 10:42.")); }
// TRANSLATORS: a sample of a notification: a Focus is done
std::string_view sampleFocusBody() { return constant(KEY("50 minutes, start to finish.")); }

std::string_view blockTitle() { return constant(KEY("Your first Block")); }
std::string_view blockDetail()
{
    return constant(
        KEY("Filled in from what’s on this Mac. Change the Lists and mode now, or anything later in Blocks."));
}
// TRANSLATORS: a label: the name of the first Block
std::string_view name() { return constant(KEY("Name")); }
// TRANSLATORS: a label: the days and hours of the first Block
std::string_view when() { return constant(KEY("When")); }
// TRANSLATORS: a label: the Lists of the first Block
std::string_view keepQuiet() { return constant(KEY("Keep quiet")); }
// TRANSLATORS: a label: Gentle or Firm
std::string_view mode() { return constant(KEY("Mode")); }
std::string_view gentleDetail()
{
    // TRANSLATORS: what the level Gentle means
    return constant(KEY("After a breath, open an app for 5, 10 or 15 minutes, as often as you like."));
}
std::string_view firmDetail()
{
    // TRANSLATORS: what the level Firm means
    return constant(KEY("A breath is for calm, never a way in. Ending early takes a 3-minute breath."));
}
// TRANSLATORS: why the Block cannot be saved yet
std::string_view pickAList() { return constant(KEY("Pick at least one List.")); }

std::string_view doneTitle() { return constant(KEY("Orvel lives in your menu bar")); }
// TRANSLATORS: goes on with keys, such as "Control Option B"
std::string_view doneBody() { return constant(KEY("Click the orb for today. For a breath anywhere, press")); }
std::string_view doneBodyNoShortcut()
{
    return constant(KEY("Click the orb for today, and Breathe now is right there."));
}
// TRANSLATORS: spoken: a picture
std::string_view menuBarLabel() { return constant(KEY("Orvel’s orb in the menu bar")); }

// TRANSLATORS: the name of a modifier key
std::string_view control() { return constant(KEY("Control")); }
// TRANSLATORS: the name of a modifier key
std::string_view option() { return constant(KEY("Option")); }
// TRANSLATORS: the name of a modifier key
std::string_view shift() { return constant(KEY("Shift")); }
// TRANSLATORS: the name of a modifier key
std::string_view command() { return constant(KEY("Command")); }

std::string phaseLabel(std::int64_t phase, std::int64_t of, std::string_view name)
{
    // TRANSLATORS: spoken: %1$lld which phase, %2$lld how many there are, %3$@ its name
    return localized(KEY("Step %lld of %lld, %@"), phase, of, name);
}
std::string breathMeta(std::string_view captions, std::string_view sound)
{
    // TRANSLATORS: below the first breath: %1$@ and %2$@ whether captions and sound are on
    return localized(KEY("1 minute · Calm · %@ · %@"), captions, sound);
}
std::string uncoveredDetail(std::string_view browser)
{
    return localized(
        // TRANSLATORS: %1$@ and %2$@ the name of the same browser
        KEY("Orvel can’t see %@’s tabs yet. You can block %@ itself during Blocks, in Settings."), browser, browser);
}
std::string browserSpoken(std::string_view browser, std::string_view state)
{
    // TRANSLATORS: spoken: %1$@ the name of a browser, %2$@ such as "Covered"
    return localized(KEY("%@, %@"), browser, state);
}
std::string found(std::string_view apps, std::int64_t websites)
{
    // TRANSLATORS: %@ the names of apps, one or several
    return localized(COUNTED("%@ found on this Mac, plus %lld websites"), apps, websites);
}
std::string websitesOnly(std::int64_t websites)
{
    // TRANSLATORS: these: the apps of the Lists that were picked
    return localized(COUNTED("None of these apps are on this Mac. %lld websites are blocked."), websites);
}
std::string notInstalled(std::string_view apps)
{
    return localized(
        // TRANSLATORS: %@ the names of apps, one or several
        KEY("%@ aren’t on this Mac. Their websites are blocked, and the apps will be if you install them."), apps);
}
// TRANSLATORS: spoken: %@ keys, such as "Control Option B"
std::string keysSpoken(std::string_view keys) { return localized(KEY("Press %@"), keys); }

}
