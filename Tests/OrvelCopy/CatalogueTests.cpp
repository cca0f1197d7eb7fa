#include "OrvelCopy/Blocks.h"
#include "OrvelCopy/Controls.h"
#include "OrvelCopy/FocusFilter.h"
#include "OrvelCopy/Lists.h"
#include "OrvelCopy/Shortcuts.h"
#include "OrvelCopy/Widgets.h"
#include "Tests/OrvelCopy/EnglishTexts.h"

using namespace orvel;

TEST(Catalogue, composesWidgetTexts)
{
    using namespace Copy::Widgets;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { std::string(statusDescription()),
                "What\u2019s keeping things quiet now, today\u2019s numbers and a breath." },
            { std::string(breatheName()), "Breathe Now" },
            { std::string(breatheNow()), "Breathe now" },
            { until("12:00"), "until 12:00" },
            { onDay("Wed", "09:00"), "Wed 09:00" },
            { untilLeft("12:00", "1 h 5 m"), "Until 12:00 \u00B7 1 h 5 m left" },
            { openUntil("Mail", "12:00"), "Mail open until 12:00" },
            { minutesLeft(1), "1 min left" },
            { endsAt("12:00", {}), "Ends at 12:00" },
            { endsAt("12:00", "Social, Chat"), "Ends at 12:00 \u00B7 Social, Chat" },
            { endsAt("12:00", ""), "Ends at 12:00 \u00B7 " },
            { startsMode("Tomorrow 09:00", "Firm"), "Tomorrow 09:00 \u00B7 Firm" },
            { spanMode("Tomorrow 09:00", "10:30", "Firm"), "Tomorrow 09:00 \u2013 10:30 \u00B7 Firm" },
            { pausedDetail(0), "Open Orvel to block again." },
            { pausedDetail(1), "Your 1 Blocks are saved." },
            { pausedDetail(-1), "Your -1 Blocks are saved." },
            { breatheNowFor(3), "Breathe now \u00B7 3 min" },
            { session(3, "Calm"), "3 min \u00B7 Calm" },
            { sentence("Now", "Deep work", "Until 12:00", "Nothing counted yet today."),
                "Orvel. Now: Deep work, Until 12:00. Nothing counted yet today." },
            { sentence({}, "Deep work", "Until 12:00", "Fine."), "Orvel. Deep work, Until 12:00. Fine." },
            { todaySentence(1, 2, 3), "Today: 1 breaths, 2 minutes breathed, stayed off 3 times." },
            { breatheSentence(5), "Orvel, Breathe now, 5 minute. Opens a breath." },
        };
    });
}

TEST(Catalogue, knowsTwoStylesOfBreathBesideCalm)
{
    using Copy::Widgets::style;
    expectInEnglish([] {
        return std::vector<EnglishText> { { style("reset"), "Reset" }, { style("ground"), "Ground" },
            { style("calm"), "Calm" }, { style("Reset"), "Calm" }, { style("reset "), "Calm" }, { style(""), "Calm" } };
    });
}

TEST(Catalogue, composesControlAndFocusFilterTexts)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Controls::focusOff(25), "Off \u00B7 25 min" },
            { Controls::focusOnSpoken(1), "on, 1 minutes left" },
            { FocusFilter::summary("Social", "Firm"), "Social \u00B7 Firm" },
            { FocusFilter::quiet("Social and Chat"), "Social and Chat quiet" },
            { FocusFilter::nowDetail("Social"), "Social quiet \u00B7 until your Focus ends" },
            { FocusFilter::sentence("Your Focus", "Firm", "Social"),
                "Your Focus, Firm, Social quiet, until your Focus ends" },
            { std::string(FocusFilter::quitRefused()),
                "Your Focus is Firm while it\u2019s on. Orvel has to keep running to block." },
        };
    });
}

TEST(Catalogue, hasASingularForExactlyOne)
{
    using namespace Copy;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Lists::appsOnThisMac(1), "1 app on this Mac" },
            { Lists::appsOnThisMac(0), "0 apps on this Mac" },
            { Lists::appsOnThisMac(2), "2 apps on this Mac" },
            { Lists::appsOnThisMac(-1), "-1 apps on this Mac" },
            { Blocks::apps(1), "1 app" },
            { Blocks::blocksSummary(1, 2, false), "Blocks 1 app and 2 websites." },
            { Blocks::blocksSummary(0, 1, true),
                "Blocks 0 apps and 1 website. Ready-made Lists add new apps you install." },
        };
    });
}

TEST(Catalogue, picksTheTextOfTheCase)
{
    using namespace Copy;
    using Shortcuts::Surface;
    expectInEnglish([] {
        return std::vector<EnglishText> {
            { Blocks::running("12:00"), "Running \u00B7 until 12:00" },
            { Blocks::scheduleWithLists("a", "b", "c"), "a \u00B7 b \u00B7 c" },
            { Blocks::rowSentence("Work", "Firm", "weekdays", true), "Work, Firm, weekdays" },
            { Blocks::rowSentence("Work", "Firm", "weekdays", false), "Work, Firm, weekdays, off" },
            { Shortcuts::firmRefusal("Work", "12:00", Surface::shortcut),
                "Work is Firm until 12:00, so a shortcut can\u2019t turn it off. Ending early takes a 3-minute breath "
                "in "
                "Orvel." },
            { Shortcuts::firmRefusal("Work", "12:00", Surface::controlCenter),
                "Work is Firm until 12:00, so Control Center can\u2019t turn it off. Ending early takes a 3-minute "
                "breath "
                "in Orvel." },
            { Shortcuts::ultraHardRefusal("Work", "12:00", Surface::shortcut),
                "Work is in Ultra Hard mode until 12:00, so a shortcut can\u2019t turn it off. Nothing ends it "
                "early." },
            { Shortcuts::ultraHardRefusal("Work", "12:00", Surface::controlCenter),
                "Work is in Ultra Hard mode until 12:00, so Control Center can\u2019t turn it off. Nothing ends it "
                "early." },
        };
    });
}
