#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "OrvelCopy/FirstRun.h"
#include "OrvelCopy/Insights.h"
#include "OrvelCopy/Lists.h"
#include "OrvelCopy/Lookup/Listing.h"
#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelCopy/Popover.h"
#include "OrvelCopy/Sheets.h"

using namespace orvel;
using namespace orvel::Copy;

namespace {

struct Case {
    std::string text, expected;
};

/// What `make` asks for in English is what its table says.
void expectEach(std::vector<Case> (*make)())
{
    for (const auto& [text, expected] : inLanguage(Locale::english(), make))
        EXPECT_EQ(text, expected);
}

}

TEST(PagesAndSheets, speakSpansRoundedUp)
{
    using Popover::spoken;
    expectEach([] {
        return std::vector<Case> {
            { spoken(Seconds { -1e30 }), "under a minute" },
            { spoken(Seconds { 59.9 }), "under a minute" },
            { spoken(Seconds { 60 }), "1 minute" },
            { spoken(Seconds { 60.001 }), "2 minutes" },
            { spoken(Seconds { 3541 }), "1 hour" },
            { spoken(Seconds { 3660 }), "1 hour 1 minute" },
            { spoken(Seconds { 7199 }), "2 hours" },
            { spoken(Seconds { 7260 }), "2 hours 1 minute" },
            { Insights::minutes(-65), "-65 minutes" },
            { Insights::minutes(0), "0 minutes" },
            { Insights::minutes(1), "1 minute" },
            { Insights::minutes(59), "59 minutes" },
            { Insights::minutes(60), "1 hour" },
            { Insights::minutes(61), "1 hour 1 minute" },
            { Insights::minutes(120), "2 hours" },
            { Insights::minutes(135), "2 hours 15 minutes" },
        };
    });
}

TEST(PagesAndSheets, speakNoSpanThatIsNone)
{
    using Limits = std::numeric_limits<double>;
    for (const auto seconds : { Limits::infinity(), Limits::quiet_NaN(), 6e20 })
        EXPECT_DEATH(Popover::spoken(Seconds { seconds }), "64-bit") << seconds;
}

TEST(PagesAndSheets, countInTheWordsOfTheCase)
{
    using namespace Insights;
    expectEach([] {
        return std::vector<Case> {
            { soFar(0, 0), "Nothing yet. Your breaths and the times you stay off show up here." },
            { soFar(1, 0), "So far: 1 breath." },
            { soFar(2, 1), "So far: 2 breaths, and you stayed off once." },
            { soFar(0, 2), "So far: 0 breaths, and you stayed off 2 times." },
            { soFar(-1, -1), "So far: -1 breaths, and you stayed off -1 times." },
            { summary("Now", 1, "3 minutes"), "Now · 1 breath, 3 minutes breathed." },
            { summary("Now", 0, "0 minutes"), "Now · 0 breaths, 0 minutes breathed." },
            { chartDay("Monday", "1 hour", 0), "Monday 1 hour, no breaths." },
            { chartDay("Monday", "1 hour", 1), "Monday 1 hour, 1 breath." },
            { chartDay("Monday", "1 hour", -2), "Monday 1 hour, -2 breaths." },
            { times(1), "once" },
            { times(0), "0 times" },
            { percent(38), "38%" },
            { moodsNote(1), "From 1 check-in with a mood." },
            { moodsNote(0), "From 0 check-ins with a mood." },
            { stayedOff(1, 1), "You stayed off 1 of 1 times." },
        };
    });
    expectEach([] {
        return std::vector<Case> {
            { Lists::readyMadeNote(0),
                "A ready-made List. None of its apps are on this Mac yet; each is blocked if you install it." },
            { Lists::readyMadeNote(1),
                "A ready-made List. Orvel found 1 of its apps on this Mac; the others are blocked if you install "
                "them." },
            { Lists::readyMadeNote(-2),
                "A ready-made List. Orvel found -2 of its apps on this Mac; the others are blocked if you install "
                "them." },
            { Lists::readyMadeIncludes(1), "Ready-made · includes the 1 app on this Mac" },
            { Lists::readyMadeIncludes(0), "Ready-made · includes the 0 apps on this Mac" },
            { Lists::overCap(1), "A List holds 40 websites at most, so 1 didn’t fit." },
            { Lists::overCap(3), "A List holds 40 websites at most, so 3 didn’t fit." },
            { Sheets::emergencyUses(1), "This uses your last emergency exit this month." },
            { Sheets::emergencyUses(2), "This uses 1 of your 2 emergency exits this month." },
            { Sheets::emergencyUses(0), "This uses 1 of your 0 emergency exits this month." },
            { FirstRun::found("Mail", 1), "Mail found on this Mac, plus 1 websites" },
        };
    });
}

TEST(PagesAndSheets, leaveOutWhatIsAbsent)
{
    expectEach([] {
        return std::vector<Case> {
            { Popover::focusDetail("12:00", 25, "Social"), "Until 12:00 · 25 min left · Social" },
            { Popover::focusDetail("12:00", 25, {}), "Until 12:00 · 25 min left" },
            { Popover::blockingPaused("It goes on."), "Blocking is paused. It goes on." },
            { Popover::blockingPaused({}), "Blocking is paused." },
            { Insights::chartSentence("today", "1 hour", "None."), "Screen time, today, about 1 hour a day. None." },
            { Insights::chartSentence("today", {}, "None."), "Screen time, today. None." },
            { Lists::coverage("Safari", "Firefox"), "Blocked in Safari. Firefox isn’t covered yet." },
            { Lists::coverage("Safari", {}), "Blocked in Safari." },
            { Lists::invalidWebsite("a.org"),
                "That doesn’t look like a website yet. Try a.org. Orvel blocks whole websites, so there’s no need for "
                "a page address." },
            { Lists::invalidWebsite({}),
                "That doesn’t look like a website yet. Orvel blocks whole websites, so there’s no need for a page "
                "address." },
            { Sheets::timeLeft("0:42", true), "0:42 left · Captions on" },
            { Sheets::timeLeft("0:42", false), "0:42 left" },
        };
    });
}

TEST(PagesAndSheets, sayWhatTheGuardCanDo)
{
    using namespace Sheets;
    EXPECT_EQ(safetyDelete(false, false), safetyDelete());
    EXPECT_EQ(safetyDelete(false, true), safetyDelete());
    EXPECT_EQ(safetyDelete(true, false), safetyDeleteGuarded());
    EXPECT_EQ(safetyDelete(true, true), safetyDeleteGuardedAdmin());
    EXPECT_EQ(noneLeftDetail(true, false), noneLeftDetailGuarded());
    for (const auto& [guarded, admin] : { std::pair { false, false }, { false, true }, { true, true } })
        EXPECT_EQ(noneLeftDetail(guarded, admin), noneLeftDetail()) << guarded << admin;
}

TEST(PagesAndSheets, insertABrowserTwice)
{
    expectEach([] {
        return std::vector<Case> {
            { Popover::browserNeedsPermission("50%@"), "50%@ needs permission. Websites in 50%@ aren’t blocked." },
            { FirstRun::uncoveredDetail("Ice"),
                "Orvel can’t see Ice’s tabs yet. You can block Ice itself during Blocks, in Settings." },
        };
    });
}

TEST(PagesAndSheets, neverLookUpTheNameInTheMenus)
{
    for (const auto& text : listedTexts())
        EXPECT_FALSE(text.namespace_ == "Menus" && text.key == "Orvel") << text.member;
}
