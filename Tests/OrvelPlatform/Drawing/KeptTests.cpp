#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "Tests/OrvelPlatform/Drawing/Drawn.h"

using namespace orvel;

namespace {

const Color white { 1, 1, 1 };
const Size canvas { 40, 40 };

/// Something in a rectangle of the canvas.
View placed(const Rect& in, View view)
{
    return Padding { { in.y, in.x, canvas.height - in.bottom(), canvas.width - in.right() }, std::move(view) };
}

/// The largest of any channel's.
int difference(std::uint32_t a, std::uint32_t b)
{
    int most = 0;
    for (const unsigned shift : { 0U, 8U, 16U, 24U })
        most = std::max(most, std::abs(static_cast<int>(a >> shift & 0xffU) - static_cast<int>(b >> shift & 0xffU)));
    return most;
}

}

TEST(Clips, cutWhatReachesTheirEdgeAndNothingElse)
{
    const LinearGradient gradient { { 0, 0 }, { 1, 1 }, { { 0, { 1, 0, 0 } }, { 1, { 0, 0, 1 } } } };
    const Rect rounded { 2, 2, 36, 36 };
    const RoundedRectangle corner { 12 };
    const struct {
        std::string_view name;
        Rect in;
        View view;
    } cases[] = {
        { "a disc in the middle", { 12, 12, 16, 16 }, Shape { Ellipse {}, white } },
        { "a disc in a corner", { 3, 3, 10, 10 }, Shape { Ellipse {}, white } },
        { "a disc across a side", { -4, 15, 10, 10 }, Shape { Ellipse {}, white } },
        { "a rectangle along a side", { 2, 14, 6, 12 }, Shape { Rectangle {}, white } },
        { "a rectangle with one corner cut", { 2, 14, 6, 24 }, Shape { Rectangle {}, white } },
        { "a hairline", { 0, 4, 40, 1 }, Shape { Rectangle {}, white } },
        { "a stroke", { 4, 4, 32, 32 }, Shape { Rectangle {}, white, Stroke { .width = 4 } } },
        { "a ground", { 0, 0, 40, 40 }, Shape { Rectangle {}, gradient } },
        { "a faded ground", { 0, 0, 40, 40 }, Opacity { 1, Shape { Rectangle {}, gradient } } },
    };
    const auto covered = drawn(placed(rounded, Shape { corner, white }), canvas, 2);
    const View under = Shape { Rectangle {}, Color { 0, 1, 0 } };
    for (const auto& c : cases) {
        for (const bool isClear : { true, false }) {
            const auto back = isClear ? View(Spacer {}) : under;
            const View view = placed(c.in, c.view);
            const View filled = Frame { FrameLength::filling(), FrameLength::filling(), Alignment::topLeading, view };
            // The clip is the rounded rectangle's, what is clipped stays where it was.
            const View clipped = placed(
                rounded, Clipped { corner, Padding { { -rounded.y, -rounded.x, -rounded.y, -rounded.x }, filled } });
            const auto whole = drawn(Background { filled, back }, canvas, 2);
            const auto got = drawn(Background { clipped, back }, canvas, 2);
            const auto ground = drawn(back, canvas, 2);
            for (std::size_t i = 0; i < got.words.size(); ++i) {
                const auto coverage = covered.words[i] >> 24U;
                if (coverage != 0 && coverage != 255)
                    continue;
                const auto expected = coverage == 0 ? ground.words[i] : whole.words[i];
                ASSERT_LE(difference(got.words[i], expected), 4) << c.name << ", pixel " << i << ", clear " << isClear;
            }
        }
    }
}

TEST(Grounds, areTheSamePixelsInThePictureItselfAndKept)
{
    const Size large { 300, 280 }; // more bytes than are kept of what is wanted once
    const struct {
        std::string_view name;
        Color color;
        Insets room;
        Outline clip;
    } cases[] = {
        { "all over", { 1, 0, 0 }, {}, Rectangle {} },
        { "within rounded corners", { 0, 1, 0 }, {}, RoundedRectangle { 20 } },
        { "off whole pixels", { 0, 0, 1 }, { 3.25, 2.5, 1, 7 }, RoundedRectangle { 20 } },
        { "half clear", { 1, 0, 1, 0.5 }, {}, Rectangle {} },
    };
    for (const auto& c : cases) {
        const LinearGradient gradient { { 0.1, 0 }, { 0.8, 1 }, { { 0, c.color }, { 1, { 0.2, 0.3, 0.4 } } } };
        const View view = Padding { c.room, Clipped { c.clip, Shape { Rectangle {}, gradient } } };
        const auto first = drawn(view, large, 1.5);
        for (int again = 0; again < 2; ++again)
            EXPECT_TRUE(drawn(view, large, 1.5).words == first.words) << c.name;
    }
}

TEST(TextMasks, putTogetherFromGlyphsAreWhatTheirOutlinesGive)
{
    const TextStyle style { .size = 17, .lineHeight = 22, .weight = 600 };
    for (const auto* words : { "Until 12:42 · 2 h 28 m left", "fjord, Åse & Łódź", "بدء التركيز" }) {
        const auto painted = [&](const Color& last) {
            return drawn(
                Text { .runs = { { words, style, white }, { "!", style, last } }, .paint = white }, { 300, 24 }, 2);
        };
        const auto glyphs = painted(white); // one colour: one mask
        const auto outlines = painted({ 1, 1, 0.9 }); // a mask for each colour
        std::size_t ink = 0;
        for (std::size_t i = 0; i < glyphs.words.size(); ++i) {
            const int one = static_cast<int>(glyphs.words[i] >> 24U),
                      other = static_cast<int>(outlines.words[i] >> 24U);
            // Of one the curves are exact, of the other they are lines that keep within a tenth of a pixel.
            ASSERT_LE(std::abs(one - other), 64) << words << ", pixel " << i;
            ink += one > 128 ? 1 : 0;
        }
        EXPECT_GT(ink, 500U) << words;
    }
}
