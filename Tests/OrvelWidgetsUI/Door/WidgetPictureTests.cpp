#include "OrvelWidgetsUI/Door/WidgetPicture.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

namespace orvel {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr auto state = WidgetContent::State::next;

WidgetDrawing drawing(WidgetSize size, WidgetLook look)
{
    const Calendar utc(TimeZone::utc());
    const auto content = WidgetContent::status(WidgetFixtures::moment(state, utc), *Locale::named("en-GB"), utc);
    return { .content = content, .size = size, .look = look, .words = Locale::english() };
}

WidgetAction breatheAction()
{
    return { "OpenBreathe", { { "minutes", std::int64_t { 3 } }, { "style", "calm" } } };
}

DrawnWidget drawn(const WidgetDrawing& asked)
{
    static Renderer renderer(designBundle(), FontScope::ownProcess);
    auto widget = drawnWidget(renderer, asked);
    EXPECT_TRUE(widget) << widget.error().text();
    return widget.value_or(DrawnWidget {});
}

bool isInside(const DrawnWidget::Frame& frame, const DrawnWidget::Frame& canvas)
{
    return frame.x >= 0 && frame.y >= 0 && frame.x + frame.width <= canvas.width
        && frame.y + frame.height <= canvas.height;
}

TEST(DrawnWidget, TheDoorLeadsToTheSamePictures)
{
    for (const auto look : { WidgetLook::dawn, WidgetLook::clear }) {
        auto asked = drawing(WidgetSize::medium, look);
        asked.breathe = breatheAction();
        asked.words = Locale::named("de");
        const auto here = drawn(asked);
        const auto there = drawWidget(asked);
        ASSERT_TRUE(there) << there.error().text();
        ASSERT_THAT(there->layers, SizeIs(here.layers.size()));
        for (std::size_t layer = 0; layer < here.layers.size(); ++layer)
            EXPECT_TRUE(there->layers[layer].pixels == here.layers[layer].pixels) << here.layers[layer].name;
        EXPECT_EQ(there->elements, here.elements);
        EXPECT_EQ(there->actions, here.actions);
        EXPECT_THAT(there->actions, ElementsAre(Field(&DrawnWidget::Action::label, "Jetzt atmen")));
    }
}

TEST(DrawnWidget, TheBreatheLabelRunsWhatItIsGiven)
{
    auto asked = drawing(WidgetSize::large, WidgetLook::dusk);
    EXPECT_THAT(drawn(asked).actions, IsEmpty());
    asked.breathe = breatheAction();
    const auto widget = drawn(asked);
    ASSERT_THAT(widget.actions, SizeIs(1));
    EXPECT_EQ(widget.actions.front().action, breatheAction());
    EXPECT_THAT(widget.elements, ElementsAre(Field(&DrawnWidget::Element::label, asked.content.sentence)));
}

TEST(DrawnWidget, BiggerTextEnlargesPixelsAndFrames)
{
    auto asked = drawing(WidgetSize::medium, WidgetLook::dusk);
    asked.breathe = breatheAction();
    const auto usual = drawn(asked);
    asked.environment.set<OrvelBiggerTextKey>(BiggerText(BiggerText::maxSteps));
    const auto bigger = drawn(asked);
    EXPECT_GT(bigger.width, usual.width);
    const double by = bigger.width / static_cast<double>(usual.width);
    EXPECT_NEAR(bigger.actions.front().frame.y, usual.actions.front().frame.y * by, 1);
    EXPECT_TRUE(isInside(bigger.actions.front().frame, { 0, 0, 1. * bigger.width, 1. * bigger.height }));
    EXPECT_EQ(bigger.elements.size(), usual.elements.size());
}

TEST(DrawnWidget, TintedLooksHaveTwoLayersAndNoBackground)
{
    const auto widget = drawn(drawing(WidgetSize::small, WidgetLook::mono));
    ASSERT_THAT(widget.layers, SizeIs(2));
    EXPECT_EQ(widget.layers[0].name, "default");
    EXPECT_EQ(widget.layers[1].name, "accent");
    EXPECT_EQ(widget.layers[0].pixels.front(), 0U);
    auto asked = drawing(WidgetSize::small, WidgetLook::dusk);
    EXPECT_EQ(drawn(asked).layers.front().pixels.front() >> 24U, 0xffU);
    asked.hasBackground = false;
    EXPECT_EQ(drawn(asked).layers.front().pixels.front(), 0U);
}

TEST(DrawnWidget, APngHasNoPixelsBeside)
{
    auto asked = drawing(WidgetSize::small, WidgetLook::dawn);
    asked.format = WidgetDrawing::Format::png;
    const auto widget = drawn(asked);
    EXPECT_THAT(widget.layers.front().png, StartsWith("\x89PNG"));
    EXPECT_THAT(widget.layers.front().pixels, IsEmpty());
}

TEST(DrawnWidget, APictureThatWouldBeTooLargeIsAFault)
{
    auto asked = drawing(WidgetSize::large, WidgetLook::dusk);
    asked.scale = 1000;
    const auto widget = drawWidget(asked);
    ASSERT_FALSE(widget);
    EXPECT_EQ(widget.error().why, "a picture is 1 to 4096 pixels wide and high");
}

}
}
