#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"

#include <gtest/gtest.h>

#include "Tests/OrvelWidgetsUI/Drawn/Samples.h"

using namespace orvel;
using State = WidgetContent::State;

// Where everything stands. The sums: small 138 inside 16, medium and large 328 wide inside 18, 138 and 350 high.

TEST(SmallWidget, hasTheOrbAtItsTopAndTheWordsAtItsFoot)
{
    EXPECT_EQ(
        recordedWidget(sample(State::now), WidgetSize::small, WidgetLook::dawn).text(), R"(clip 0,0 170×170 rectangle
  fill -4.86,-4.86 81.72×81.72 ellipse radial 65.9 0 #F0AE72 22% 0.34 #F0AE72 9% 0.62 #F0AE72 0%
  fill 15.22,14.42 41.55×41.55 ellipse radial 28.86 0 #FFF3E0 0.26 #F9CF9B 0.47 #F0AE72 0.6 #E89A5E 62% 0.67 #E89A5E 18% 0.72 #E89A5E 0%
  accent
    text 16,83 20.46×13 "NOW" #8F4E1C
  text 16,98 67.5×38 "Morning · / Deep work" #262236
  text 16,138 66×16 "until 12:00" #5C556D
element text 0,0 170×170 "Orvel. Now: Morning · Deep work, Until 12:00 · 1 h 12 m left. Today: 3 breaths, 7 minutes breathed, stayed off 12 times."
)");
}

TEST(SmallWidget, hasARingWhereThereIsProgressForIt)
{
    auto content = sample(State::focus);
    const auto marks = [&] { return recordedWidget(content, WidgetSize::small, WidgetLook::dusk); };
    EXPECT_EQ(linesWith(marks(), "stroke"), R"(stroke 18,18 36×36 ellipse width 2 #F4ECDF 12%
stroke 18,18 36×36 arc 0 0.76 width 4 round #F8C995
)");
    content.progress.reset();
    EXPECT_EQ(linesWith(marks(), "stroke"), "");
    EXPECT_EQ(linesWith(marks(), "fill"),
        R"(fill -4.86,-4.86 81.72×81.72 ellipse radial 65.9 0 #FAC68C 20% 0.34 #FAC68C 8% 0.62 #FAC68C 0%
fill 15.22,14.42 41.55×41.55 ellipse radial 28.86 0 #FFF7EA 0.26 #FEE4BF 0.47 #F8C995 0.6 #F2B07A 62% 0.67 #F2B07A 18% 0.72 #F2B07A 0%
)");
}

TEST(SmallWidget, hasALargerOrbForABreath)
{
    EXPECT_EQ(recordedWidget(sample(State::breathe), WidgetSize::small, WidgetLook::dusk).text(),
        R"(clip 0,0 170×170 rectangle
  fill -13.2,-13.2 114.41×114.41 ellipse radial 92.26 0 #FAC68C 20% 0.34 #FAC68C 8% 0.62 #FAC68C 0%
  fill 14.91,13.79 58.17×58.17 ellipse radial 40.4 0 #FFF7EA 0.26 #FEE4BF 0.47 #F8C995 0.6 #F2B07A 62% 0.67 #F2B07A 18% 0.72 #F2B07A 0%
  text 16,117 82.5×19 "Breathe now" #F4ECDF
  text 16,138 72×16 "3 min · Calm" #A9A2B8
element text 0,0 170×170 "Orvel, Breathe now, 3 minute. Opens a breath."
)");
}

TEST(MediumWidget, offersABreathWhereNothingRuns)
{
    EXPECT_EQ(
        recordedWidget(sample(State::next), WidgetSize::medium, WidgetLook::dusk).text(), R"(clip 0,0 364×170 rectangle
  accent
    fill 18,16 24×24 ellipse #A9CDA3 18%
    symbol 22.8,20.8 14.4×14.4 moon width 1.35 #A9CDA3
  accent
    text 50,21.5 27.28×13 "NEXT" #F8C995
  text 18,48 59.5×22 "Evening" #F4ECDF
  text 18,70 174×16 "Tomorrow 19:00 – 22:00 · Firm" #A9A2B8
  accent
    fill 18,126 109×28 capsule #F3DEC0
    symbol 24,131 18×18 circle.circle width 1.31 #1F1B30
    text 49,132 66×16 "Breathe now" #1F1B30
  text 254,20 10×24 "3" #F4ECDF
  text 254,44 38.5×14 "breaths" #A9A2B8
  fill 254,61.5 92×1 rectangle #F4ECDF 10%
  text 254,66 10×24 "7" #F4ECDF
  text 254,90 66×14 "min breathed" #A9A2B8
  fill 254,107.5 92×1 rectangle #F4ECDF 10%
  text 254,112 20×24 "12" #F4ECDF
  text 254,136 55×14 "stayed off" #A9A2B8
element text 50,21.5 27.28×13 "Next"
element text 18,48 59.5×22 "Evening"
element text 18,70 174×16 "Tomorrow 19:00 – 22:00 · Firm"
element button 18,126 109×28 "Breathe now"
element text 254,20 38.5×38 "3 breaths"
element text 254,66 66×38 "7 min breathed"
element text 254,112 55×38 "12 stayed off"
action 18,126 109×28 "Breathe" OpenBreathe
)");
}

TEST(MediumWidget, fillsItsProgressFromTheLeadingEdge)
{
    const auto content = sample(State::now);
    const auto bar = [&](const Environment& environment) {
        return linesWith(recordedWidget(content, WidgetSize::medium, WidgetLook::dusk, environment), "capsule");
    };
    EXPECT_EQ(bar({}), R"(fill 18,150 222×4 capsule #F4ECDF 12%
clip 18,150 222×4 capsule
fill 18,150 88.8×4 capsule #F8C995
)");
    EXPECT_EQ(bar(rightToLeft), R"(fill 124,150 222×4 capsule #F4ECDF 12%
clip 124,150 222×4 capsule
fill 257.2,150 88.8×4 capsule #F8C995
)");
}

TEST(MediumWidget, hasRoomForFourLinesAboveTheLabel)
{
    auto content = sample(State::next);
    content.title = "Finish the report and answer all questions";
    content.detail = "Tomorrow 9:00 AM – 10:30 AM · Ultra Hard indeed";
    const auto canvas = recordedWidget(content, WidgetSize::medium, WidgetLook::dusk);
    EXPECT_EQ(
        linesWith(canvas, "text 18"), R"(text 18,42 178.5×44 "Finish the report and / answer all questions" #F4ECDF
text 18,86 180×32 "Tomorrow 9:00 AM –⁠ 10:30 AM · / Ultra Hard indeed" #A9A2B8
element text 18,42 178.5×44 "Finish the report and answer all questions"
element text 18,86 180×32 "Tomorrow 9:00 AM – 10:30 AM · Ultra Hard indeed"
)");
}

TEST(LargeWidget, keepsTheFiguresAndTheWeekAtItsFoot)
{
    EXPECT_EQ(
        recordedWidget(sample(State::focus), WidgetSize::large, WidgetLook::dusk).text(), R"(clip 0,0 364×382 rectangle
  accent
    fill 18,16 24×24 ellipse #B8AAE6 18%
    symbol 22.8,20.8 14.4×14.4 timer width 1.35 #B8AAE6
  accent
    text 50,21.5 34.1×13 "FOCUS" #F8C995
  text 18,48 93.5×22 "38 min left" #F4ECDF
  text 18,70 168×16 "Ends at 11:26 · Social, Chat" #A9A2B8
  accent
    fill 18,94 328×4 capsule #F4ECDF 12%
    clip 18,94 328×4 capsule
      fill 18,94 249.28×4 capsule #F8C995
  fill 18,154 328×1 rectangle #F4ECDF 10%
  text 18,169 12×28 "3" #F4ECDF
  text 18,197 38.5×14 "breaths" #A9A2B8
  fill 122,169 1×42 rectangle #F4ECDF 10%
  text 137,169 12×28 "7" #F4ECDF
  text 137,197 66×14 "min breathed" #A9A2B8
  fill 241,169 1×42 rectangle #F4ECDF 10%
  text 256,169 24×28 "12" #F4ECDF
  text 256,197 55×14 "stayed off" #A9A2B8
  fill 18,225 328×1 rectangle #F4ECDF 10%
  text 18,240 115.5×14 "Stayed off, this week" #A9A2B8
  fill 18,300 40×4 rounded 4 #F4ECDF 10%
  text 35.25,307 5.5×14 "T" #A9A2B8
  fill 66,282 40×22 rounded 4 #F4ECDF 10%
  text 83.25,307 5.5×14 "F" #A9A2B8
  fill 114,293 40×11 rounded 4 #F4ECDF 10%
  text 131.25,307 5.5×14 "S" #A9A2B8
  fill 162,260 40×44 rounded 4 #F4ECDF 10%
  text 179.25,307 5.5×14 "S" #A9A2B8
  fill 210,271 40×33 rounded 4 #F4ECDF 10%
  text 227.25,307 5.5×14 "M" #A9A2B8
  fill 258,300 40×4 rounded 4 #F4ECDF 10%
  text 275.25,307 5.5×14 "T" #A9A2B8
  accent
    fill 306,282 40×22 rounded 4 #F8C995
  text 323.25,307 5.5×14 "W" #F4ECDF
  accent
    fill 18,334 172.5×32 capsule #F3DEC0
    symbol 25,340 20×20 circle.circle width 1.46 #1F1B30
    text 53,342 123.5×16 "Breathe now · 3 min" #1F1B30
element text 0,0 364×382 "Orvel. Focus: 38 min left, Ends at 11:26 · Social, Chat. Today: 3 breaths, 7 minutes breathed, stayed off 12 times."
action 18,334 172.5×32 "Breathe" OpenBreathe
)");
}
