#include "OrvelCopy/BreatheView.h"
#include "OrvelCopy/BreatheWindow.h"
#include "OrvelCopy/Pause.h"
#include "OrvelCopy/TabPage.h"
#include "Tests/OrvelCopy/EnglishTexts.h"

using namespace orvel;

TEST(BreathTexts, haveASingularForExactlyOne)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { BreatheView::minutesSpoken(1, "Reset"), "1 minute, Reset" },
            { BreatheView::minutesSpoken(0, "Reset"), "0 minutes, Reset" },
            { BreatheView::minutesSpoken(3, "Settle"), "3 minutes, Settle" },
            { BreatheWindow::playerLabel("Ground", 1, 40), "Ground breath, 1 minute, 40% done" },
            { BreatheWindow::playerLabel("Ground", 5, 1), "Ground breath, 5 minutes, 1% done" },
            { BreatheWindow::breathsToday(1), "Nice. That\u2019s your first today." },
            { BreatheWindow::breathsToday(0), "Nice. That\u2019s 0 today." },
            { BreatheWindow::breathsToday(2), "Nice. That\u2019s 2 today." },
            { BreatheWindow::breathsToday(-1), "Nice. That\u2019s -1 today." },
            { Pause::playerLabel(1, 40), "Calm breath, 1 minute, 40% done" },
            { Pause::playerLabel(0, 100), "Calm breath, 0 minutes, 100% done" },
            { Pause::tileLabel(1, "Reset", 1, 3), "1 minute, Reset, 1 of 3" },
            { Pause::tileLabel(5, "Deep", 2, 3), "5 minutes, Deep, 2 of 3" },
        };
    });
}

TEST(BreathTexts, keepTheirNumberWhereTheyTestNone)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Pause::openLabel("Mail", 1), "Open Mail for 1 minutes" },
            { Pause::endedTitle(1), "That\u2019s your 1 minutes." },
            { TabPage::spokenLength(3, "Settle"), "3 minute, Settle" },
        };
    });
}

TEST(BreathTexts, holdMinutesTogetherInTheViewOnly)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { BreatheView::minutes(1), "1\u00A0min" },
            { BreatheView::session(3, "Calm"), "3\u00A0min \u00B7 Calm" },
            { BreatheWindow::floatingReady("Calm", 3), "Calm \u00B7 3 min" },
            { Pause::openLength(5), "5 min" },
            { Pause::tileLength(1), "1 min" },
        };
    });
}

TEST(BreathTexts, joinTheirParts)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { BreatheWindow::settingsLine("Captions on", "Ocean"), "Captions on \u00B7 Ocean \u00B7" },
            { BreatheWindow::playerStatus("2:35 left", "Captions on", "Ocean"),
                "2:35 left \u00B7 Captions on \u00B7 Ocean \u00B7 esc ends the breath" },
            { BreatheWindow::fullScreenStatus("2:35 left"),
                "2:35 left \u00B7 esc ends the breath \u00B7 \u2303\u2318F leaves full screen" },
            { BreatheWindow::floatingLine("Hold", "2:35"), "Hold \u00B7 2:35" },
            { Pause::arrival("Mail is quiet.", "Breathe first"), "Mail is quiet. Breathe first." },
            { Pause::blocked("Mail", "12:00", "Work"), "Mail is blocked until 12:00 by Work." },
            { Pause::endsAt("Work", "12:00"), "Work ends at 12:00." },
        };
    });
}
