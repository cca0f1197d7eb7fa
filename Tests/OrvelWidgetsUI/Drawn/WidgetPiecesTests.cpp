#include <gtest/gtest.h>

#include "OrvelWidgetsUI/Drawn/WidgetBreatheLabel.h"
#include "OrvelWidgetsUI/Drawn/WidgetHeader.h"
#include "OrvelWidgetsUI/Drawn/WidgetKicker.h"
#include "OrvelWidgetsUI/Drawn/WidgetProgressBar.h"
#include "OrvelWidgetsUI/Drawn/WidgetRing.h"
#include "OrvelWidgetsUI/Drawn/WidgetWeek.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"
#include "Tests/OrvelWidgetsUI/Drawn/Samples.h"

using namespace orvel;

TEST(WidgetWeek, drawsDaysFromTheTrailingEdge)
{
    const WidgetContent::Bar none { "M", 0, false }, half { "T", 0.5, false }, today { "W", 1, true };
    struct Case {
        std::string_view name;
        std::vector<WidgetContent::Bar> bars;
        std::string_view drawn;
        Environment environment {};
    };
    const Case cases[] = {
        { "nothing is 4 high and today is the accent", { none, half, today },
            "fill 192,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 240,22 40×22 rounded 4 #F4ECDF 10%\n"
            "fill 288,0 40×44 rounded 4 #F8C995\n" },
        { "from the right", { none, today },
            "fill 48,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 0,0 40×44 rounded 4 #F8C995\n",
            rightToLeft },
        { "heights that cannot be", { { "M", -2, false }, { "T", 7, false } },
            "fill 240,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 288,0 40×44 rounded 4 #F4ECDF 10%\n" },
        { "the last seven", { half, half, none, none, none, none, none, none, none },
            "fill 0,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 48,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 96,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 144,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 192,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 240,40 40×4 rounded 4 #F4ECDF 10%\n"
            "fill 288,40 40×4 rounded 4 #F4ECDF 10%\n" },
        { "no days at all", {}, "" },
    };
    for (const auto& c : cases) {
        const auto canvas = recorded(WidgetWeek { c.bars, WidgetLook::dusk }, { 0, 0, 328, 60 }, c.environment);
        EXPECT_EQ(linesWith(canvas, "fill"), c.drawn) << c.name;
        EXPECT_TRUE(canvas.elements().empty()) << c.name;
    }
}

TEST(WidgetProgressBar, isAsLongAsWhatIsLeft)
{
    struct Case {
        double progress;
        std::string_view filled; // within the track
    };
    const Case cases[] = {
        { 0.5, "fill 0,0 100×4 capsule #F8C995\n" },
        { 1.5, "fill 0,0 200×4 capsule #F8C995\n" },
        { 0.01, "fill -2,0 4×4 capsule #F8C995\n" },
        { 0, "" },
        { -1, "" },
    };
    for (const auto& c : cases) {
        const auto canvas = recorded(WidgetProgressBar { c.progress, WidgetLook::dusk }, { 0, 0, 200, 4 });
        EXPECT_EQ(linesWith(canvas, "#F8C995"), c.filled) << c.progress;
    }
}

TEST(WidgetRing, runsClockwiseFromTheTopInEveryLayout)
{
    const auto arc = [](double progress, const Environment& environment) {
        return linesWith(recorded(WidgetRing { progress, WidgetLook::dusk }, { 0, 0, 40, 40 }, environment), "arc");
    };
    EXPECT_EQ(arc(0.25, {}), "stroke 2,2 36×36 arc 0 0.25 width 4 round #F8C995\n");
    EXPECT_EQ(arc(0.25, rightToLeft), arc(0.25, {}));
    EXPECT_EQ(arc(1.3, {}), "stroke 2,2 36×36 arc 0 1 width 4 round #F8C995\n");
    EXPECT_EQ(arc(0, {}), "");
}

TEST(WidgetBreatheLabel, isCutOutOfItsCapsuleWhereTheDesktopTints)
{
    const auto label = [](bool large, WidgetLook look) {
        const View view = WidgetBreatheLabel { "Breathe now", large, look };
        return recorded(view, { {}, measure(view, Proposal::ideal, {}).size }).text();
    };
    EXPECT_EQ(label(false, WidgetLook::dawn), R"(accent
  fill 0,0 109×28 capsule #2A2438
  symbol 6,5 18×18 circle.circle width 1.31 #FBF8F2
  text 31,6 66×16 "Breathe now" #FBF8F2
element button 0,0 109×28 "Breathe now"
)");
    EXPECT_EQ(label(true, WidgetLook::clear), R"(accent
  fill 0,0 120.5×32 capsule #FFFFFF
  symbol 7,6 20×20 circle.circle width 1.46 erase
  text 35,8 71.5×16 "Breathe now" erase
element button 0,0 120.5×32 "Breathe now"
)");
}

TEST(WidgetHeader, isAccentWithItsWordsReadAsTheyAreWritten)
{
    auto content = sample(WidgetContent::State::next);
    content.kicker = "şimdi";
    content.tone = "no tone";
    const auto turkish = Environment().with<WordsLocaleKey>(*Locale::named("tr"));
    EXPECT_EQ(recorded(WidgetHeader(content, WidgetLook::mono), { 0, 0, 200, 24 }, turkish).text(), R"(accent
  fill 0,0 24×24 ellipse #FFFFFF 18%
  symbol 4.8,4.8 14.4×14.4 moon width 1.35 #FFFFFF
accent
  text 32,5.5 34.1×13 "ŞİMDİ" #FFFFFF 82%
element text 32,5.5 34.1×13 "şimdi"
)");
}

TEST(WidgetKicker, hasAirBetweenCapitalsOnly)
{
    const auto width = [](std::string words) {
        const View view = WidgetKicker { std::move(words), WidgetLook::dusk };
        return measure(view, Proposal::ideal, {}).size.width;
    };
    EXPECT_NEAR(width("Now"), 3 * (11 / 2.0 + 1.32), 0.001);
    EXPECT_NEAR(width("الآن"), 4 * (11 / 2.0), 0.001);
}
