#include "WidgetHost/Windows/CardViews.h"

#include <gtest/gtest.h>

#include "OrvelDesign/Palette.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"
#include "Tests/WidgetHost/Windows/Faces.h"
#include "WidgetHost/Windows/WindowGeometry.h"

namespace orvel::tests {

namespace {

std::string drawn(const View& view, const Rect& in, const WidgetFace& face)
{
    RecordingCanvas canvas;
    draw(view, canvas, in, environmentOf(face));
    return canvas.text();
}

TEST(CardGrounds, followTheLook)
{
    struct Case {
        std::string_view name;
        ChosenLook look;
        bool hasPicture;
        bool isComposited;
        bool reducesTransparency;
        CardGround ground;
    };
    const auto popover = [](bool isSolid) { return Color(Palette::popoverFill.rgba({ true, false, isSolid })); };
    const Case cases[] = {
        { "full colour", ChosenLook::automatic, true, true, false, { std::nullopt, true } },
        { "no picture yet", ChosenLook::dusk, false, true, false, { Color(Palette::surface1.rgba({ true })), true } },
        { "mono", ChosenLook::mono, true, true, false, { popover(false), true } },
        { "mono, less transparent", ChosenLook::mono, true, true, true, { popover(true), true } },
        { "clear", ChosenLook::clear, true, true, false, { std::nullopt, false } },
        { "clear, less transparent", ChosenLook::clear, true, true, true, { popover(true), true } },
        { "clear where nothing shines through", ChosenLook::clear, true, false, false, { popover(true), false } },
    };
    for (const auto& c : cases) {
        auto shown = face({ 170, 170 }, c.hasPicture ? shared(picture(170, 170)) : nullptr);
        shown.look = c.look;
        shown.isDark = true;
        shown.reducesTransparency = c.reducesTransparency;
        if (c.look == ChosenLook::mono || c.look == ChosenLook::clear)
            shown.tint = WindowTint {};
        EXPECT_EQ(cardGround(shown, c.isComposited), c.ground) << c.name;
    }
}

TEST(CardFrames, castAShadowAndCarryTheEdgeOfTheirAppearance)
{
    constexpr Rect card { 30, 30, 100, 100 };
    auto dark = face({ 100, 100 });
    dark.isDark = true;
    EXPECT_EQ(drawn(CardFrame { 24, true, false }, card, dark),
        "shadow 30,30 100×100 rounded 24 0,4 blur 16 spread 0 #080614 50%\n"
        "fill 30,30 100×100 rounded 24 #000000 0%\n"
        "shadow 30,30 100×100 rounded 24 inset 0,1 blur 0 spread 0 #F8C995 22%\n"
        "shadow 30,30 100×100 rounded 24 inset 0,0 blur 0 spread 1 #FFFFFF 5%\n");
    auto contrasting = face({ 100, 100 });
    contrasting.increasesContrast = true;
    EXPECT_EQ(drawn(CardFrame { 24, false, true }, card, contrasting),
        "fill 30,30 100×100 rounded 24 #000000 0%\n"
        "stroke 26.5,26.5 107×107 rounded 27.5 width 3 #8F4E1C\n")
        << "the keyboard's ring alone, in the look clear";
}

TEST(CardFrames, fitIntoTheRoomRoundACard)
{
    for (const bool isDark : { false, true }) {
        for (const auto& layer : widgetShadow(isDark))
            EXPECT_LE(1.5 * layer.blur + layer.y + layer.spread, WindowGeometry::roomForShadow)
                << "three deviations of the blur, below the card";
    }
}

TEST(CardNotices, takeTheTintOfTheirWidget)
{
    const Rect place { 0, 0, 120, 20 };
    const auto plain = drawn(CardNotice { "late", std::nullopt }, place, face({ 170, 170 }));
    EXPECT_NE(plain.find("\"late\""), std::string::npos) << plain;
    EXPECT_NE(plain.find("#3B3474"), std::string::npos) << plain;
    const WindowTint green { { 0, 1, 0 }, { 0, 0, 1 } };
    const auto tinted = drawn(CardNotice { "late", green }, place, face({ 170, 170 }));
    EXPECT_NE(tinted.find("#00FF00"), std::string::npos) << tinted;
}

}

}
