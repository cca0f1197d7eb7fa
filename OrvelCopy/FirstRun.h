#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The first run: a breath, what the application asks for on this computer, a first Block, and where it lives
/// afterwards.
namespace orvel::Copy::FirstRun {

std::string_view windowLabel();

// The phases.
std::string_view phaseBreathe();
std::string_view phaseThisMac();
std::string_view phaseFirstBlock();
std::string_view phaseAllSet();

// Buttons.
std::string_view begin();
std::string_view skip();
std::string_view continueButton();
std::string_view notNow();
std::string_view openSystemSettings();
std::string_view turnOn();
std::string_view allowNotifications();
std::string_view saveBlock();
std::string_view setUpLater();
std::string_view openOrvel();
std::string_view done();

// The first breath.
std::string_view breathTitle();
std::string_view breathDetail();
std::string_view breathingHint();

// What the application needs.
std::string_view setupTitle();
/// `setupTitle` where the breath was skipped.
std::string_view setupTitleSkipped();
std::string_view setupDetail();
std::string_view needsLabel();
std::string_view needWindows();
std::string_view needWindowsDetail();
std::string_view needWebsites();
std::string_view needWebsitesDetail();
std::string_view needLogin();
std::string_view needLoginDetail();
std::string_view needNotifications();
std::string_view needNotificationsDetail();
std::string_view recommended();
std::string_view optional();
std::string_view needed();
std::string_view alreadyOn();
std::string_view setupNote();

// Following windows.
std::string_view accessTitle();
std::string_view accessBody();
std::string_view accessPrivacy();
std::string_view accessWithout();
std::string_view waitTitle();
std::string_view waitBody();
std::string_view waiting();
std::string_view waitPane();
std::string_view orvel();

// Websites, browser by browser.
std::string_view browsersTitle();
std::string_view browsersDetail();
std::string_view browsersLabel();
std::string_view covered();
std::string_view allow();
std::string_view asking();
std::string_view deniedDetail();
std::string_view notCoveredYet();
std::string_view noBrowsers();

// Opening at login.
std::string_view loginTitle();
std::string_view loginBody();
std::string_view loginNote();
std::string_view loginItems();
std::string_view application();

// Notifications.
std::string_view notifyTitle();
std::string_view notifyBody();
std::string_view notifyNote();
std::string_view notifyDenied();
/// What a notification says, as a sample.
std::string_view sampleMinuteBody();
std::string_view sampleFocusBody();

// The first Block.
std::string_view blockTitle();
std::string_view blockDetail();
std::string_view name();
std::string_view when();
std::string_view keepQuiet();
std::string_view mode();
std::string_view gentleDetail();
std::string_view firmDetail();
std::string_view pickAList();

// All set.
std::string_view doneTitle();
/// Ends with "press", for the keys of the breath to follow it.
std::string_view doneBody();
/// `doneBody` where no keys are set.
std::string_view doneBodyNoShortcut();
std::string_view menuBarLabel();

// The names of the modifier keys, as they are spoken.
std::string_view control();
std::string_view option();
std::string_view shift();
std::string_view command();

/// "Step 2 of 4, This Mac"
std::string phaseLabel(std::int64_t phase, std::int64_t of, std::string_view name);
/// "1 minute · Calm · Captions on · Sound off"
std::string breathMeta(std::string_view captions, std::string_view sound);
/// "Orvel can’t see Firefox’s tabs yet. …"
std::string uncoveredDetail(std::string_view browser);
/// "Safari, Covered"
std::string browserSpoken(std::string_view browser, std::string_view state);
/// "Mail and Slack found on this Mac, plus 12 websites"
std::string found(std::string_view apps, std::int64_t websites);
/// "None of these apps are on this Mac. 12 websites are blocked."
std::string websitesOnly(std::int64_t websites);
/// "Mail and Slack aren’t on this Mac. …"
std::string notInstalled(std::string_view apps);
/// "Press Control Option B"
std::string keysSpoken(std::string_view keys);

}
