#include "WidgetHost/Desk/Desk.h"

#include <fstream>
#include <gmock/gmock.h>

#include "Tests/WidgetHost/Desk/FakeServices.h"

using namespace orvel;
using namespace orvel::tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

namespace {

constexpr DesktopAppearance light { .colorScheme = DesktopAppearance::ColorScheme::light };
constexpr DesktopAppearance dark { .colorScheme = DesktopAppearance::ColorScheme::dark };

}

TEST(Desk, asksNothingBeforeTheAppearanceIsKnown)
{
    World world;
    world.desk.add("status", "systemSmall");
    EXPECT_EQ(world.services.timelines, 0);
    EXPECT_THAT(world.faces, IsEmpty());
    world.desk.appearanceChanged(light);
    EXPECT_EQ(world.services.timelines, 1);
    EXPECT_EQ(world.face().name, "Status");
    EXPECT_EQ(world.face().families, (std::vector<std::string> { "systemSmall", "systemMedium" }));
    EXPECT_TRUE(world.face().picture);
}

TEST(Desk, tellsTheExtensionWhatSurroundsAWidget)
{
    struct Case {
        std::string_view name;
        ChosenLook look;
        DesktopAppearance appearance;
        std::string renderingMode, colorScheme;
        bool background;
    };
    const Case cases[] = {
        { "as a dark desktop", ChosenLook::automatic, dark, "fullColor", "dark", true },
        { "no preference is light", ChosenLook::automatic, {}, "fullColor", "light", true },
        { "dusk on a light desktop", ChosenLook::dusk, light, "fullColor", "dark", true },
        { "dawn on a dark desktop", ChosenLook::dawn, dark, "fullColor", "light", true },
        { "one colour", ChosenLook::mono, dark, "vibrant", "dark", false },
        { "tinted", ChosenLook::clear, light, "accented", "light", false },
    };
    for (const auto& c : cases) {
        World world;
        world.desk.add("status", "systemMedium", c.look);
        world.desk.appearanceChanged(c.appearance);
        ASSERT_EQ(world.services.drawn.size(), 1u) << c.name;
        const auto& drawn = world.services.drawn.front();
        EXPECT_EQ(drawn.family, "systemMedium") << c.name;
        EXPECT_EQ(drawn.renderingMode, c.renderingMode) << c.name;
        EXPECT_EQ(drawn.colorScheme, c.colorScheme) << c.name;
        EXPECT_EQ(drawn.background, c.background) << c.name;
        EXPECT_EQ(world.face().isDark, c.colorScheme == "dark") << c.name;
        EXPECT_EQ(world.face().tint.has_value(), c.renderingMode != "fullColor") << c.name;
    }
}

TEST(Desk, passesTheDesktopsAndItsOwnSettingsOn)
{
    World world;
    world.home = { Locale::named("de-AT").value(), "de", TimeZone::named("Europe/Vienna").value() };
    world.desk.add("status", "systemSmall", ChosenLook::clear);
    world.desk.setSettings(true, 9);
    world.desk.appearanceChanged({ .increasesContrast = true,
        .reducesMotion = true,
        .accentColor = DesktopAppearance::AccentColor { 1, 0.5, 0 },
        .textScale = 1.5 });
    const auto& drawn = world.services.drawn.back();
    EXPECT_EQ(drawn.contrast, "increased");
    EXPECT_EQ(drawn.reduceMotion, true);
    EXPECT_EQ(drawn.reduceTransparency, true);
    EXPECT_EQ(drawn.personalAccent, true);
    EXPECT_EQ(drawn.textScale, 1.5);
    EXPECT_EQ(drawn.biggerText, 4);
    EXPECT_EQ(drawn.language, "de");
    EXPECT_EQ(drawn.locale, Locale::named("de-AT"));
    EXPECT_EQ(drawn.timeZone, TimeZone::named("Europe/Vienna"));
    EXPECT_EQ(world.face().name, "Status auf Deutsch");
    EXPECT_EQ(world.face().tint->accent, Color(1, 0.5, 0));
    EXPECT_GT(world.face().pointScale, 1.5);

    world.home.timeZone = TimeZone::utc();
    world.desk.homelandChanged();
    EXPECT_EQ(world.services.drawn.back().timeZone, TimeZone::utc());
}

TEST(Desk, aCardIsAsItsPictureWasDrawn)
{
    World world;
    world.desk.appearanceChanged(light);
    world.services.nap = 1s;
    world.desk.add("status", "systemSmall");
    EXPECT_EQ(world.face().size, (Size { 170, 170 }));
    EXPECT_FALSE(world.face().picture);
    world.clock.advance(1s);
    EXPECT_TRUE(world.face().picture);

    // Until the new picture came, the old one keeps its size, its tint and its scale.
    world.desk.setScale("1", 2);
    world.desk.setFamily("1", "systemMedium");
    world.desk.setLook("1", ChosenLook::mono);
    EXPECT_EQ(world.face().size, (Size { 170, 170 }));
    EXPECT_FALSE(world.face().tint);
    EXPECT_EQ(world.face().family, "systemMedium");
    EXPECT_EQ(world.face().look, ChosenLook::mono);
    world.clock.advance(1s);
    EXPECT_EQ(world.face().size, (Size { 364, 170 }));
    EXPECT_EQ(world.face().picture->width, 728u);
    EXPECT_TRUE(world.face().tint);
}

TEST(Desk, drawsOnceForAWindowThatSaysItsScaleAsItAppears)
{
    World world;
    world.whenShown = [&](const std::string& id) { world.desk.setScale(id, 2); };
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemSmall");
    world.services.drawn.clear();
    world.desk.add("status", "systemMedium");
    ASSERT_EQ(world.services.drawn.size(), 1u);
    EXPECT_EQ(world.services.drawn.front().scale, 2);
}

TEST(Desk, fractionalAndHugeScalesBecomeWholeOnesThatFit)
{
    World world;
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemSmall");
    for (const auto& [told, drawn] : { std::pair(1.25, 2.0), std::pair(8.0, 3.0), std::pair(0.0, 1.0) }) {
        world.desk.setScale("1", told);
        EXPECT_EQ(world.services.drawn.back().scale, drawn) << told;
    }
}

TEST(Desk, keepsWhatIsChosenOnDiskOnceForManyChanges)
{
    World world;
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemSmall");
    world.desk.add("status", "systemMedium", ChosenLook::dusk);
    world.desk.move("2", { "DP-1", 30, -40 });
    EXPECT_THAT(world.kept().widgets, IsEmpty());
    world.clock.advance(Desk::savingDelay);
    EXPECT_EQ(world.kept(), world.desk.state());
    EXPECT_THAT(world.kept().widgets,
        ElementsAre(PlacedWidget { "1", "status", "systemSmall", ChosenLook::automatic, std::nullopt },
            PlacedWidget { "2", "status", "systemMedium", ChosenLook::dusk, WidgetPlace { "DP-1", 30, -40 } }));

    world.desk.remove("1");
    world.desk.save();
    EXPECT_EQ(world.kept().widgets.size(), 1u);
    EXPECT_FALSE(world.faces.contains("1"));
    EXPECT_EQ(world.desk.add("status", "systemSmall"), "1");
}

TEST(Desk, saysWhatIsWrongWithItsFile)
{
    World world;
    std::ofstream(world.folder / "other.json") << "not at all";
    HostStateFile broken(world.folder / "other.json");
    const Desk desk(world.clock, world.services, broken, [&] { return world.home; }, {});
    EXPECT_THAT(desk.warning(), Optional(HasSubstr("other.json")));
    EXPECT_FALSE(world.desk.warning());

    world.desk.appearanceChanged(light);
    std::filesystem::create_directories(world.folder / "widget-host.json" / "in the way");
    world.desk.add("status", "systemSmall");
    world.clock.advance(Desk::savingDelay);
    EXPECT_THAT(world.desk.warning(), Optional(HasSubstr("could not be saved")));
    std::filesystem::remove_all(world.folder / "widget-host.json");
    world.desk.save();
    EXPECT_FALSE(world.desk.warning());
    EXPECT_EQ(world.kept().widgets.size(), 1u);
}

TEST(Desk, doesWhatIsClickedAndSaysWhenThatFails)
{
    World world;
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemSmall");
    world.desk.open("1", "token");
    world.desk.act("1", 0, "");
    world.desk.act("1", 1, "no such action");
    world.desk.open("7", "no such widget");
    EXPECT_THAT(world.services.calls, ElementsAre("orvel://today token", "OpenBreathe 3 without token"));
    EXPECT_FALSE(world.face().notice);

    world.services.broken = { "busy" };
    world.desk.act("1", 0, "");
    EXPECT_FALSE(world.face().notice);
    world.services.broken = { "perform" };
    world.desk.act("1", 0, "");
    EXPECT_THAT(world.face().notice, Optional(HasSubstr("Try again")));
    world.services.broken = { "open" };
    world.desk.open("1", "");
    EXPECT_THAT(world.face().notice, Optional(HasSubstr("could not be opened")));
    world.clock.advance(Desk::troubleSpan);
    EXPECT_FALSE(world.face().notice);
}

TEST(Desk, saysSinceWhenAWidgetIsNotUpToDate)
{
    World world;
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemSmall");
    world.services.broken = { "timeline" };
    world.desk.reload({ "other" });
    EXPECT_EQ(world.services.timelines, 1);
    world.desk.reload({ "status" });
    EXPECT_EQ(world.services.timelines, 2);
    world.clock.advance(2min);
    EXPECT_THAT(world.face().notice, Optional(HasSubstr("since 9:00")));
    EXPECT_TRUE(world.face().picture);
    world.services.broken = {};
    world.desk.clockWasSet();
    EXPECT_FALSE(world.face().notice);
}

TEST(Desk, asksForMembersUntilTheyAreKnown)
{
    World world;
    world.services.broken = { "members" };
    world.desk.appearanceChanged(light);
    world.desk.add("status", "systemMedium");
    EXPECT_EQ(world.face().families, std::vector<std::string> { "systemMedium" });
    EXPECT_THAT(world.desk.warning(), Optional(HasSubstr("do not answer")));
    world.services.broken = {};
    world.clock.advance(1s);
    EXPECT_EQ(world.services.memberRequests, 2);
    EXPECT_EQ(world.face().name, "Status");
    EXPECT_FALSE(world.desk.warning());
    world.clock.advance(1h);
    EXPECT_EQ(world.services.memberRequests, 2);
}

TEST(Desk, drawsPreviewsWhileTheGalleryIsInSight)
{
    World world;
    world.desk.appearanceChanged(light);
    EXPECT_THAT(world.services.sampled, IsEmpty());
    world.desk.showPreviews(2);
    ASSERT_EQ(world.services.sampled.size(), 2u);
    EXPECT_EQ(world.services.sampled.back().isPreview, true);
    EXPECT_EQ(world.services.sampled.back().scale, 2);
    EXPECT_EQ(world.desk.preview({ "status", "systemMedium" })->width, 728u);
    EXPECT_FALSE(world.desk.preview({ "focus", "systemSmall" }));

    world.desk.appearanceChanged(dark);
    EXPECT_EQ(world.services.sampled.size(), 4u);
    EXPECT_EQ(world.services.drawn.back().colorScheme, "dark");

    world.services.broken = { "snapshot" };
    world.desk.reload({});
    EXPECT_TRUE(world.desk.preview({ "status", "systemMedium" })); // the old one
    EXPECT_EQ(world.services.sampled.size(), 6u);
    world.desk.appearanceChanged(dark);
    EXPECT_EQ(world.services.sampled.size(), 6u);

    world.desk.showPreviews(std::nullopt);
    world.desk.appearanceChanged(light);
    EXPECT_EQ(world.services.sampled.size(), 6u);
    EXPECT_FALSE(world.desk.preview({ "status", "systemMedium" }));
}
