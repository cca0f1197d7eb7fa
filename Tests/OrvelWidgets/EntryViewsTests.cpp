#include "OrvelWidgets/EntryViews.h"

#include <gtest/gtest.h>

#include "OrvelWidgetsUI/WidgetFixtures.h"

using namespace orvel;

namespace {

const Calendar berlin(TimeZone::named("Europe/Berlin").value());

/// A sample entry whose breath is not the default one.
OrvelEntry entry()
{
    auto moment = WidgetFixtures::moment(WidgetContent::State::next, berlin);
    moment.breathe = { .style = "ground", .minutes = 5 };
    return { .date = moment.date, .moment = moment };
}

EntryPlace place(std::string family, WidgetRenderingMode mode, ColorScheme scheme)
{
    return { .family = std::move(family),
        .renderingMode = mode,
        .colorScheme = scheme,
        .locale = Locale::named("en-GB").value(),
        .calendar = berlin };
}

}

TEST(TheStatusWidget, hasTheLayoutOfItsFamilyAndTheLookOfItsPlace)
{
    using enum WidgetRenderingMode;
    using enum ColorScheme;
    struct Case {
        std::string family;
        WidgetRenderingMode mode;
        ColorScheme scheme;
        WidgetSize size;
        WidgetLook look;
    };
    const Case cases[] = {
        { "systemSmall", fullColor, dark, WidgetSize::small, WidgetLook::dusk },
        { "systemMedium", fullColor, light, WidgetSize::medium, WidgetLook::dawn },
        { "systemLarge", vibrant, dark, WidgetSize::large, WidgetLook::mono },
        { "systemExtraLarge", vibrant, light, WidgetSize::large, WidgetLook::mono },
        { "accessoryCircular", accented, dark, WidgetSize::small, WidgetLook::clear },
        { "SystemMedium", accented, light, WidgetSize::small, WidgetLook::clear },
        { "", fullColor, dark, WidgetSize::small, WidgetLook::dusk },
    };
    const auto model = StatusWidgetView { entry() }.shown(place("systemSmall", fullColor, dark));
    for (const auto& c : cases) {
        auto expected = model;
        expected.size = c.size;
        expected.look = c.look;
        EXPECT_EQ(StatusWidgetView { entry() }.shown(place(c.family, c.mode, c.scheme)), expected) << c.family;

        const auto breathe = BreatheWidgetView { entry() }.shown(place(c.family, c.mode, c.scheme));
        EXPECT_EQ(breathe.size, WidgetSize::small) << c.family;
        EXPECT_EQ(breathe.look, c.look) << c.family;
    }
}

TEST(TheStatusWidget, leadsToTodayAndItsButtonToABreath)
{
    const auto in = place("systemMedium", WidgetRenderingMode::fullColor, ColorScheme::dark);
    const auto shown = StatusWidgetView { entry() }.shown(in);
    EXPECT_EQ(shown.link.text, "orvel://today");
    EXPECT_EQ(shown.breatheButton, (OpenBreatheIntent { .style = "ground", .minutes = 5 }));
    EXPECT_EQ(shown.content, WidgetContent::status(entry().moment, in.locale, berlin));
}

TEST(TheBreatheWidget, isOneLink)
{
    const auto in = place("systemSmall", WidgetRenderingMode::fullColor, ColorScheme::dark);
    const auto shown = BreatheWidgetView { entry() }.shown(in);
    EXPECT_EQ(shown.link.text, "orvel://breathe?style=ground&minutes=5");
    EXPECT_EQ(shown.breatheButton, std::nullopt);
    EXPECT_EQ(shown.content.state, WidgetContent::State::breathe);
}
