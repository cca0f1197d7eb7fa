#include "OrvelPlatform/Views/Stacks.h"

#include <gtest/gtest.h>
#include <random>

#include "Tests/OrvelPlatform/Views/Drawn.h"

using namespace orvel;

namespace {

struct LayoutCase {
    std::string_view name;
    View view;
    Rect in;
    std::string_view marks;
    Environment environment {};
};

void expectLayouts(const std::vector<LayoutCase>& cases)
{
    for (const auto& c : cases)
        EXPECT_EQ(drawn(c.view, c.in, c.environment), c.marks) << c.name;
}

/// Counts how often it is measured.
struct Counted {
    std::shared_ptr<int> count;
    Extent measure(const Proposal&, const Environment&) const
    {
        ++*count;
        return Size { 1, 1 };
    }
    void draw(Canvas&, const Rect&, const Environment&) const { }
};

}

TEST(Stacks, shareTheirRoomAndAlignTheirChildren)
{
    const auto row = [](std::vector<View> children) {
        return HStack { .spacing = 4, .children = std::move(children) };
    };
    expectLayouts({
        { "a spacer takes what is left", row({ box(10, 10), Spacer {}, box(20, 20) }), { 0, 0, 100, 20 },
            "fill 0,5 10×10 rectangle #000000\n"
            "fill 80,0 20×20 rectangle #000000\n" },
        { "the same from the right", row({ box(10, 10), Spacer {}, box(20, 20) }), { 0, 0, 100, 20 },
            "fill 90,5 10×10 rectangle #000000\n"
            "fill 0,0 20×20 rectangle #000000\n",
            rightToLeft },
        { "flexible children share", row({ filler(), box(12, 4), filler() }), { 0, 0, 100, 4 },
            "fill 0,0 40×4 ellipse #000000\n"
            "fill 44,0 12×4 rectangle #000000\n"
            "fill 60,0 40×4 ellipse #000000\n" },
        { "the less flexible is served first",
            row({ filler(), Frame { FrameLength::atMost(20), {}, Alignment::center, filler() } }), { 0, 0, 100, 4 },
            "fill 0,0 76×4 ellipse #000000\n"
            "fill 80,0 20×4 ellipse #000000\n" },
        { "a higher priority leaves the least sizes", row({ words("aaaa bbbb"), Priority { 1, words("cccccc") } }),
            { 0, 0, 60, 24 },
            "text 0,0 20×24 \"aaaa / bbbb\" #000000\n"
            "text 24,6 30×12 \"cccccc\" #000000\n" },
        { "nothing takes no gap", row({ box(10, 10), View {}, box(10, 10) }), { 0, 0, 24, 10 },
            "fill 0,0 10×10 rectangle #000000\n"
            "fill 14,0 10×10 rectangle #000000\n" },
        { "columns are equal whatever is in them",
            row({ Frame { FrameLength::filling(), {}, Alignment::leading, words("a") },
                Frame { FrameLength::filling(), {}, Alignment::leading, words("aaaa") } }),
            { 0, 0, 64, 12 },
            "text 0,0 5×12 \"a\" #000000\n"
            "text 34,0 20×12 \"aaaa\" #000000\n" },
        { "too little room overhangs at the end", row({ box(30, 10), box(30, 10) }), { 0, 0, 40, 10 },
            "fill 0,0 30×10 rectangle #000000\n"
            "fill 34,0 30×10 rectangle #000000\n" },
        { "letters stand on one line with a box",
            HStack { .alignment = VerticalAlignment::firstBaseline, .children = { words("ab"), box(5, 20) } },
            { 0, 0, 15, 23 },
            "text 0,11 10×12 \"ab\" #000000\n"
            "fill 10,0 5×20 rectangle #000000\n" },
        { "a column at its trailing edge",
            VStack { .alignment = HorizontalAlignment::trailing,
                .spacing = 2,
                .children = { box(10, 10), Spacer {}, box(30, 4) } },
            { 0, 0, 40, 40 },
            "fill 30,0 10×10 rectangle #000000\n"
            "fill 10,36 30×4 rectangle #000000\n" },
        { "the same from the right",
            VStack { .alignment = HorizontalAlignment::trailing, .spacing = 2, .children = { box(10, 10) } },
            { 0, 0, 40, 10 }, "fill 0,0 10×10 rectangle #000000\n", rightToLeft },
    });
}

TEST(Stacks, answerEveryKindOfProposal)
{
    const View row = HStack { .spacing = 4, .children = { words("aaaa bb"), Spacer { 6 }, box(10, 20) } };
    struct Case {
        std::string_view name;
        Proposal proposed;
        Size size;
    };
    const Case cases[] = {
        { "ideal", Proposal::ideal, { 35 + 4 + 6 + 4 + 10, 20 } },
        { "least", Proposal::least, { 5 + 4 + 6 + 4 + 10, 20 } },
        { "most", Proposal::most, { infiniteLength, 20 } },
        { "a length", { 48, {} }, { 48, 24 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(measure(row, c.proposed, {}).size, c.size) << c.name;
    EXPECT_EQ(measure(HStack {}, Proposal::most, {}), Extent {});
}

TEST(Stacks, giveEveryChildItsIdealSizeInTheirOwn)
{
    std::mt19937 random(7);
    const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
    for (int round = 0; round < 300; ++round) {
        HStack row { .spacing = static_cast<double>(upTo(9)), .children = {} };
        for (int i = upTo(5) + 1; i > 0; --i) {
            auto style = letters;
            style.size = 1 + upTo(20) + upTo(9) / 7.0;
            Text text { .runs = { { std::string(1 + static_cast<std::size_t>(upTo(12)), 'x'), style } },
                .paint = ink,
                .lineLimit = 1 };
            row.children.push_back(upTo(3) == 0 ? box(upTo(40), 3) : View(text));
        }
        const auto ideal = measure(row, Proposal::ideal, {});
        RecordingCanvas canvas;
        draw(row, canvas, { {}, ideal.size }, {});
        for (const auto& mark : canvas.marks())
            EXPECT_FALSE(mark.isCut) << canvas.text();
    }
}

TEST(Stacks, askEachChildOnceForEachProposal)
{
    const auto count = std::make_shared<int>(0);
    View nested = Counted { count };
    for (int level = 0; level < 12; ++level)
        nested = level % 2 == 0 ? View(HStack { .children = { nested, Spacer {} } })
                                : View(VStack { .children = { nested, Spacer {} } });
    RecordingCanvas canvas;
    draw(nested, canvas, { 0, 0, 100, 100 }, {});
    EXPECT_LT(*count, 100);
}
