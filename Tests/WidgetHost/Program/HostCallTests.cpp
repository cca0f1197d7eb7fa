#include "WidgetHost/Program/HostCall.h"

#include <gmock/gmock.h>
#include <vector>

#include "WidgetHost/Program/HostListing.h"

using namespace orvel;
using testing::HasSubstr;
using testing::Optional;

namespace {

std::expected<HostCall, CallEnd> called(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "orvel-widget-host");
    return hostCall(static_cast<int>(arguments.size()), arguments.data());
}

const std::vector<ExtensionMember> members {
    { "a.status", ExtensionMember::Role::widget, "Status", "What is\nquiet", { "systemSmall", "systemMedium" }, {} },
    { "a.focus", ExtensionMember::Role::toggle, "Focus", "", {}, {} },
};

}

TEST(HostCall, understandsWhatIsAskedFor)
{
    EXPECT_FALSE(std::get<HostCall::Show>(called({})->task).isInBackground);
    EXPECT_TRUE(std::get<HostCall::Show>(called({ "--background" })->task).isInBackground);
    EXPECT_TRUE(std::holds_alternative<HostCall::ShowGallery>(called({ "--gallery" })->task));
    EXPECT_TRUE(std::holds_alternative<HostCall::ShowControls>(called({ "--controls" })->task));
    EXPECT_TRUE(std::holds_alternative<HostCall::List>(called({ "--list" })->task));
    EXPECT_TRUE(std::holds_alternative<HostCall::Quit>(called({ "--quit" })->task));

    const auto add = std::get<HostCall::Add>(called({ "--add", "a.status", "--size=medium" })->task);
    EXPECT_EQ(add.kind, "a.status");
    EXPECT_EQ(add.family, "systemMedium");
    EXPECT_EQ(add.look, ChosenLook::automatic);
    EXPECT_EQ(std::get<HostCall::Add>(called({ "--look", "mono", "--size", "systemLarge", "--add", "b" })->task).look,
        ChosenLook::mono);
}

TEST(HostCall, tellsWhyACallIsWrong)
{
    struct Case {
        std::vector<const char*> arguments;
        std::string_view sentence;
    };
    const Case cases[] = {
        { { "--nonsense" }, "--nonsense" },
        { { "something" }, "something" },
        { { "--add" }, "--add" },
        { { "--add", "", "--size", "small" }, "KIND" },
        { { "--add", "a.status" }, "--size" },
        { { "--add", "a.status", "--size", "huge" }, "huge" },
        { { "--add", "a.status", "--size", "small", "--look", "loud" }, "loud" },
        { { "--size", "small" }, "--add" },
        { { "--look", "mono", "--gallery" }, "--add" },
        { { "--list", "--quit" }, "--quit" },
    };
    for (const auto& c : cases) {
        const auto call = called(c.arguments);
        ASSERT_FALSE(call) << c.sentence;
        EXPECT_TRUE(call.error().isWrong) << c.sentence;
        EXPECT_THAT(call.error().text, HasSubstr(c.sentence));
    }
    EXPECT_FALSE(called({ "--help" }).error().isWrong);
    EXPECT_THAT(called({ "--help" }).error().text, HasSubstr("--add KIND"));
    EXPECT_THAT(called({ "--version" }).error().text, HasSubstr("orvel-widget-host "));
}

TEST(HostListing, tellsWhatIsPlacedAndWhatMayBe)
{
    const HostState state { .widgets = {
                                { "1", "a.status", "systemMedium", ChosenLook::dusk, WidgetPlace { "DP-1", -8, 40 } },
                                { "2", "gone", "systemWide", ChosenLook::automatic, std::nullopt },
                            } };
    EXPECT_EQ(hostListing(state, members),
        "On the desktop:\n"
        "  a.status  medium      dusk       DP-1 at -8, 40\n"
        "  gone      systemWide  automatic  not placed yet\n"
        "To add:\n"
        "  a.status  small, medium  Status: What is?quiet\n");
    EXPECT_EQ(hostListing({}, std::nullopt), "There are no widgets on the desktop.\n");
}

TEST(HostListing, refusesWhatIsNotOffered)
{
    const auto look = ChosenLook::automatic;
    EXPECT_FALSE(whyNotAdded({ "a.status", "systemMedium", look }, members));
    EXPECT_THAT(whyNotAdded({ "a.status", "systemLarge", look }, members), Optional(HasSubstr("small, medium")));
    EXPECT_THAT(whyNotAdded({ "a.focus", "systemSmall", look }, members), Optional(HasSubstr("a.focus")));
}
