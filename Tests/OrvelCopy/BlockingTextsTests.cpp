#include "OrvelCopy/Blocking.h"
#include "OrvelCopy/Guard.h"
#include "OrvelCopy/Notifications.h"
#include "OrvelCopy/Shortcuts.h"
#include "OrvelCopy/Toasts.h"
#include "OrvelCopy/Window.h"
#include "Tests/OrvelCopy/EnglishTexts.h"

using namespace orvel;

TEST(BlockingTexts, sayWhatIsOnAndHowFirmly)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Shortcuts::blockAlready("Work", true), "Work was already on." },
            { Shortcuts::blockAlready("Work", false), "Work was already off." },
            { Blocking::quitRefused("Work", true, "12:00"),
                "Work is in Ultra Hard mode until 12:00. Orvel has to keep running to block." },
            { Blocking::quitRefused("Work", false, "12:00"),
                "Work is Firm until 12:00. Orvel has to keep running to block." },
            { Notifications::relaunchBody("Work", true, "12:00"),
                "Work is in Ultra Hard mode until 12:00, so Orvel started itself again after it was quit." },
            { Notifications::relaunchBody("Work", false, "12:00"),
                "Work is Firm until 12:00, so Orvel started itself again after it was quit." },
        };
    });
}

TEST(BlockingTexts, leaveOutWhatIsAbsentButNotWhatIsEmpty)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Toasts::emergencyExit("Work", "12:00"), "Work ended. That\u2019s okay. It\u2019ll be back 12:00." },
            { Toasts::emergencyExit("Work", ""), "Work ended. That\u2019s okay. It\u2019ll be back ." },
            { Toasts::emergencyExit("Work", {}), Toasts::endedEarly("Work") },
            { Toasts::blockUpdated("Work", "12:00"), "Work updated. Active until 12:00." },
            { Toasts::blockUpdated("Work", {}), "Work updated." },
            { Notifications::focusDoneBody(1, "Social"), "1 minutes, start to finish. Social are open again." },
            { Notifications::focusDoneBody(25, {}), "25 minutes, start to finish." },
        };
    });
}

TEST(BlockingTexts, putTheirValuesInOrder)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Shortcuts::focusStarted(1, "12:00"), "Focus started: 1 minutes, until 12:00." },
            { Shortcuts::todaysNumbers(1, 2, 3), "1 breaths, 2 minutes breathed, stayed off 3 times." },
            { Blocking::begun("Work", "Mail", "12:00"), "Work has begun. Mail is resting until 12:00." },
            { Notifications::uncoveredBody("Work", "Lynx"),
                "Work covers your apps and Safari. Orvel can\u2019t see Lynx\u2019s tabs." },
            { Window::fixBrowsers(1), "1 browsers need permission" },
            { std::string(Window::phoneHint()), "Opens orvel.app in your browser." },
        };
    });
}

TEST(BlockingTexts, ofTheGuardDependOnWhoIsAnAdministrator)
{
    using namespace Copy::Guard;
    struct Case {
        std::string (*text)(bool admin);
        std::string_view toAdministrators, toOthers; // words that only one of the two is told
    };
    constexpr Case cases[] = {
        { cardBody, "to the Bin", "password" },
        { explainIntro, "to the Bin", "force-quitting" },
        { doneDetail, "to the Bin", "password" },
        { doneLimit, "you can still", "an administrator can still" },
        { rowOn, "to the Bin", "password" },
        { rowOff, "to the Bin", "password" },
    };
    Copy::inLanguage(Locale::english(), [&] {
        for (const auto& c : cases) {
            for (const auto admin : { true, false }) {
                EXPECT_EQ(c.text(admin).contains(c.toAdministrators), admin) << c.text(admin);
                EXPECT_EQ(c.text(admin).contains(c.toOthers), !admin) << c.text(admin);
            }
        }
    });
}
