#include "WidgetHost/Program/ControlFilling.h"

#include <gmock/gmock.h>

using namespace orvel;
using testing::ElementsAre;
using testing::Optional;

namespace {

using Role = ExtensionMember::Role;

const Surroundings around { {}, false, 0, { Locale::english(), "", TimeZone::utc() } };

ShownControl control(const std::string& kind, Role role, std::optional<ControlValue> value = {})
{
    return { .member = { kind, role, "Named " + kind, "", {}, {} }, .value = std::move(value) };
}

std::vector<std::string> labels(const TrayContent& content)
{
    std::vector<std::string> labels;
    for (const auto& line : content.menu)
        labels.push_back(line.label);
    return labels;
}

}

TEST(ControlFilling, theTrayShowsTheGlyphOfWhatRunsAndAMenu)
{
    ControlValue running { .title = "Focus now", .value = "12 min left", .symbol = "timer" };
    running.isOn = true;
    running.glyph = "focus";
    running.glyphValue = 0.5;
    // A control of the name of another line of the menu is no other line.
    const std::vector controls { control("quit", Role::button), control("focus", Role::toggle, running) };
    const auto content = trayContent({ controls, true }, around);
    EXPECT_TRUE(std::holds_alternative<MenuBarOrb::Focus>(content.glyph));
    EXPECT_EQ(content.toolTipTitle, "Focus now");
    EXPECT_EQ(content.toolTipText, "12 min left");
    EXPECT_THAT(labels(content), ElementsAre("Named quit", "Focus now", "", "Add Widgets…", "Quit Orvel Widgets"));
    EXPECT_FALSE(content.menu[0].isChecked);
    EXPECT_FALSE(content.menu[0].isEnabled);
    EXPECT_EQ(content.menu[1].isChecked, true);
    EXPECT_THAT(controlOfLine(content.menu[0].id), Optional(std::string("quit")));
    EXPECT_FALSE(controlOfLine(content.menu[4].id));

    const auto gone = trayContent({ controls, false }, around);
    EXPECT_TRUE(std::holds_alternative<MenuBarOrb::Fix>(gone.glyph));
    EXPECT_EQ(gone.toolTipText, "Orvel’s widgets do not answer.");
    EXPECT_THAT(labels(trayContent({ {}, true }, around)), ElementsAre("Add Widgets…", "Quit Orvel Widgets"));
}

TEST(ControlFilling, thePanelShowsWhatWasAskedForAndWhatWentWrong)
{
    ControlValue off { .title = "Focus now", .value = "Off", .symbol = "timer" };
    off.isOn = false;
    auto toggle = control("focus", Role::toggle, off);
    toggle.askedFor = true;
    const std::vector controls { toggle, control("breathe", Role::button) };
    const auto content = panelContent({ controls, true }, around, "It failed.");
    ASSERT_EQ(content.controls.size(), 2u);
    EXPECT_TRUE(content.controls[0].isOn);
    EXPECT_TRUE(content.controls[0].isWaiting);
    EXPECT_EQ(content.controls[1].title, "Named breathe");
    EXPECT_FALSE(content.controls[1].isEnabled);
    EXPECT_THAT(content.notice, Optional(std::string("It failed.")));
    EXPECT_NE(panelContent({ controls, false }, around, "It failed.").notice, content.notice);
}
