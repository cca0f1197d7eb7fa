#include "WidgetHost/Windows/PartList.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "Tests/WidgetHost/Windows/Faces.h"

namespace orvel::tests {

namespace {

/// A window's parts as lines.
std::string listed(const WidgetFace& face)
{
    std::string lines;
    const auto geometry = windowGeometry(face, 1, false);
    for (const auto& part : partsOf(face, geometry)) {
        const auto& [meaning, frame, opens, action] = part;
        lines += fmt::format("{} \"{}\" {},{} {}x{}{}{}{}\n", rawValue(meaning.role), meaning.label, frame.x, frame.y,
            frame.width, frame.height, opens ? " opens" : "", action ? fmt::format(" acts {}", *action) : "",
            meaning.isFocusable ? " by keys" : "");
    }
    return lines;
}

HostPicture spoken(std::vector<PictureElement> elements, std::vector<PictureAction> actions)
{
    auto drawn = picture(170, 170);
    drawn.elements = std::move(elements);
    drawn.actions = std::move(actions);
    return drawn;
}

TEST(Parts, areTheWholeTheElementsAndTheActions)
{
    auto shown = face({ 340, 340 },
        shared(spoken({ { "image", "Orb", { -20, -20, 120, 120 } }, { "text", "Until 15:57", { 16, 90, 100, 16 } },
                          { "group", "This week", { 16, 110, 138, 20 } }, { "sparkle", "New", { 0, 0, 4, 4 } },
                          { "button", "Breathe now", { 16, 140, 90, 28 } } },
            { { "Breathe now", { 16, 140, 90, 28 }, "OpenBreathe", {} } })));
    shown.pointScale = 2;
    EXPECT_EQ(listed(shown),
        "button \"Status\" 0,0 340x340 opens by keys\n"
        "image \"Orb\" 0,0 200x200\n"
        "text \"Until 15:57\" 32,180 200x32\n"
        "group \"This week\" 32,220 276x40\n"
        "text \"New\" 0,0 8x8\n"
        "button \"Breathe now\" 32,280 180x56 acts 0 by keys\n");
    EXPECT_EQ(partsOf(shown, windowGeometry(shown, 1, true)).front().meaning.description,
        "Orb\nUntil 15:57\nThis week\nNew\nBreathe now");
}

TEST(Parts, withoutALinkDoNotOpen)
{
    auto bare = spoken({ { "button", "Breathe now · 3 min", { 0, 0, 170, 170 } } }, {});
    EXPECT_EQ(listed(face({ 170, 170 }, shared(spoken(bare.elements, {})))),
        "button \"Status\" 0,0 170x170 opens by keys\n"
        "button \"Breathe now · 3 min\" 0,0 170x170 opens\n");
    bare.link.clear();
    EXPECT_EQ(listed(face({ 170, 170 }, shared(std::move(bare)))),
        "group \"Status\" 0,0 170x170 by keys\n"
        "button \"Breathe now · 3 min\" 0,0 170x170\n");
    EXPECT_EQ(listed(face({ 170, 170 })), "group \"Status\" 0,0 170x170 by keys\n");
}

TEST(Parts, sayTheNotice)
{
    auto late = face({ 170, 170 }, shared(spoken({}, {})));
    late.notice = "Not up to date";
    EXPECT_EQ(listed(late),
        "button \"Status\" 0,0 170x170 opens by keys\n"
        "text \"Not up to date\" 0,0 170x170\n");
    late.picture = nullptr;
    EXPECT_EQ(listed(late),
        "group \"Status\" 0,0 170x170 by keys\n"
        "text \"Not up to date\" 0,0 170x170\n");
}

}

}
