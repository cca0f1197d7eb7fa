#include "OrvelWidgetsUI/Drawn/ControlStandIn.h"

#include <gtest/gtest.h>

#include "Tests/OrvelWidgetsUI/Drawn/Samples.h"

using namespace orvel;

namespace {

std::string drawn(WidgetContent::State state, ControlStandIn::Size size, ColorScheme scheme)
{
    const auto moment = WidgetFixtures::moment(state, Calendar(TimeZone::utc()));
    const View view = ControlStandIn { ControlContent::focus(moment), size };
    const auto environment = Environment().with<ColorSchemeKey>(scheme);
    return recorded(view, { {}, measure(view, Proposal::ideal, environment).size }, environment).text();
}

}

TEST(ControlStandIn, hasThreeSizes)
{
    using Size = ControlStandIn::Size;
    using State = WidgetContent::State;
    EXPECT_EQ(drawn(State::next, Size::small, ColorScheme::light), R"(fill 22,13 56×56 ellipse #FFFFFF
symbol 39.8,30.8 20.4×20.4 timer width 1.92 #262236
text 25.25,75 49.5×14 "Focus now" #262236
element button 0,0 100×102 "Focus now · off"
)");
    EXPECT_EQ(drawn(State::focus, Size::medium, ColorScheme::dark), R"(fill 0,0 168×76 rounded 22 #2C2843
fill 12,18 40×40 ellipse #E9A46C
symbol 23,29 18×18 timer width 1.69 #1F1B30
text 62,22.5 58.5×16 "Focus now" #F4ECDF
text 62,39.5 60.5×14 "38 min left" #A9A2B8
element button 0,0 168×76 "Focus now · on, 38 minutes left"
)");
    EXPECT_EQ(drawn(State::focus, Size::bar, ColorScheme::light), R"(symbol 4.7,3.2 15.6×15.6 timer width 1.47 #262236
text 23,3 19.5×16 "38m" #262236
element button 0,0 48.5×22 "Focus now · on, 38 minutes left"
)");
    EXPECT_EQ(drawn(State::next, Size::bar, ColorScheme::light), R"(symbol 4.7,3.2 15.6×15.6 timer width 1.47 #262236
element button 0,0 25×22 "Focus now · off"
)");
}
